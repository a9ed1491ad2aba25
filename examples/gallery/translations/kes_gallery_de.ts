<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>kes::gallery::AboutPage</name>
    <message>
        <source>Not a readable image</source>
        <translation>Kein lesbares Bild</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Qt widgets and helpers for robotics and machine-vision tools</source>
        <translation>Qt-Widgets und Hilfsmittel für Robotik und Bildverarbeitung</translation>
    </message>
    <message>
        <source>%1 is a Qt 5 widget library for desktop tools in robotics and machine vision: the views, editors and small helpers that such tools need again and again. Each page of this gallery shows one part of it.</source>
        <translation>%1 ist eine Qt-5-Widget-Bibliothek für Desktop-Werkzeuge in Robotik und Bildverarbeitung: die Ansichten, Editoren und Hilfsmittel, die solche Werkzeuge immer wieder brauchen. Jede Seite dieser Galerie zeigt einen Teil davon.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (the gallery was built against %2)</source>
        <translation>%1 (die Galerie wurde mit %2 gebaut)</translation>
    </message>
    <message>
        <source>Qt at run time:</source>
        <translation>Qt zur Laufzeit:</translation>
    </message>
    <message>
        <source>Qt at compile time:</source>
        <translation>Qt zur Kompilierzeit:</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Compiled into the library&apos;s resources under %1</source>
        <translation>Unter %1 in die Ressourcen der Bibliothek einkompiliert</translation>
    </message>
    <message>
        <source>No icons found under %1.</source>
        <translation>Unter %1 wurden keine Symbole gefunden.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::MainWindow</name>
    <message>
        <source>libkes_qt gallery</source>
        <translation>libkes_qt-Galerie</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
</context>
<context>
    <name>kes::gallery::ScopePage</name>
    <message>
        <source>Scope</source>
        <translation>Oszilloskop</translation>
    </message>
    <message>
        <source>Sixteen channels at 1 kHz</source>
        <translation>Sechzehn Kanäle mit 1 kHz</translation>
    </message>
    <message>
        <source>Synthetic sine, square, sawtooth and noisy signals arrive every 20 ms and the plot is redrawn 30 times a second. Channel 1 sweeps from a rising edge and channel 2 follows it; the others run free with the newest sample at the right edge. Choose a channel with the colour buttons, drag its zero line (left) or trigger level (right), and right-click for time base, amplification, trigger, colour and the clipboard exports.</source>
        <translation>Synthetische Sinus-, Rechteck-, Sägezahn- und verrauschte Signale treffen alle 20 ms ein, und die Anzeige wird 30-mal pro Sekunde neu gezeichnet. Kanal 1 startet an einer steigenden Flanke, Kanal 2 folgt ihm; die übrigen laufen frei mit dem neuesten Wert am rechten Rand. Wählen Sie einen Kanal mit den Farbknöpfen, ziehen Sie seine Nulllinie (links) oder seinen Triggerpegel (rechts), und öffnen Sie mit der rechten Maustaste Zeitbasis, Verstärkung, Trigger, Farbe und die Exporte in die Zwischenablage.</translation>
    </message>
    <message>
        <source>&amp;Channels:</source>
        <translation>&amp;Kanäle:</translation>
    </message>
    <message>
        <source>Trigger &amp;level:</source>
        <translation>Trigger&amp;pegel:</translation>
    </message>
    <message>
        <source>Last signal:</source>
        <translation>Letztes Signal:</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keines</translation>
    </message>
</context>
<context>
    <name>kes::gallery::TranslationPage</name>
    <message>
        <source>Translation</source>
        <translation>Übersetzung</translation>
    </message>
    <message>
        <source>Two kinds of translation</source>
        <translation>Zwei Arten der Übersetzung</translation>
    </message>
    <message>
        <source>The library&apos;s widgets translate their texts with Qt&apos;s tr() and the message files (.qm) compiled into the library. On a change of language the manager installs the new ones and every widget re-labels itself, like the title of the Languages menu.</source>
        <translation>Die Widgets der Bibliothek übersetzen ihre Texte mit tr() von Qt und den in die Bibliothek einkompilierten Nachrichtendateien (.qm). Bei einem Sprachwechsel installiert der Manager die neuen, und jedes Widget beschriftet sich neu, wie der Titel des Menüs „Sprachen“.</translation>
    </message>
    <message>
        <source>Application texts can come from XML translation files, loaded into a container. Arguments in square brackets are cut out to find a text and put back into its translation, in their order; a bracket after a backslash is a literal one.</source>
        <translation>Anwendungstexte können aus XML-Übersetzungsdateien in einen Container geladen werden. Argumente in eckigen Klammern werden zum Suchen entfernt und der Reihe nach in die Übersetzung eingesetzt; eine Klammer nach einem Backslash ist wörtlich gemeint.</translation>
    </message>
    <message>
        <source>Current language:</source>
        <translation>Aktuelle Sprache:</translation>
    </message>
    <message>
        <source>Choose another one in the Languages menu.</source>
        <translation>Eine andere können Sie im Menü „Sprachen“ wählen.</translation>
    </message>
    <message>
        <source>Application texts</source>
        <translation>Anwendungstexte</translation>
    </message>
    <message>
        <source>Cannot read the translation file %1.</source>
        <translation>Die Übersetzungsdatei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Cannot read the translation file %1: %2</source>
        <translation>Die Übersetzungsdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Some texts of %1 were skipped: %2</source>
        <translation>Einige Texte aus %1 wurden übersprungen: %2</translation>
    </message>
    <message>
        <source>%1 texts from %2, translated into %3</source>
        <translation>%1 Texte aus %2, übersetzt in %3</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Quelltext</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Double-click a source text to edit it. A text that the file does not hold stays as it is, in grey.</source>
        <translation>Quelltexte per Doppelklick bearbeiten. Fehlt ein Text in der Datei, bleibt er unverändert (grau).</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Not in the translation file: shown as it is.</source>
        <translation>Nicht in der Übersetzungsdatei: wird unverändert angezeigt.</translation>
    </message>
    <message>
        <source>No translation into &quot;%1&quot;: the key, with the arguments put back.</source>
        <translation>Keine Übersetzung in „%1“: der Schlüssel, mit wieder eingesetzten Argumenten.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::writeScreenshots</name>
    <message>
        <source>Cannot create the directory %1</source>
        <translation>Das Verzeichnis %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Cannot write the screenshot %1</source>
        <translation>Das Bildschirmfoto %1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Saves a picture of the window with each page as &lt;dir&gt;/&lt;page id&gt;.png, then exits.</source>
        <translation>Speichert ein Bild des Fensters mit jeder Seite als &lt;dir&gt;/&lt;Seiten-ID&gt;.png und beendet sich dann.</translation>
    </message>
    <message>
        <source>Shows the page &lt;id&gt; at start-up.</source>
        <translation>Zeigt beim Start die Seite &lt;id&gt;.</translation>
    </message>
    <message>
        <source>Starts in the language &lt;code&gt; (en, de, ...) instead of the stored one; screenshots are in English without it.</source>
        <translation>Startet in der Sprache &lt;code&gt; (en, de, ...) statt der gespeicherten; ohne diese Option sind Bildschirmfotos englisch.</translation>
    </message>
    <message>
        <source>Shows the widgets of libkes_qt, one page each.</source>
        <translation>Zeigt die Widgets von libkes_qt, jedes Thema auf einer eigenen Seite.</translation>
    </message>
    <message>
        <source>Cannot create a temporary directory for the settings: %1</source>
        <translation>Für die Einstellungen kann kein temporäres Verzeichnis angelegt werden: %1</translation>
    </message>
    <message>
        <source>Cannot read the language list %1</source>
        <translation>Die Sprachliste %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;; the languages are: %2</source>
        <translation>Es gibt keine Sprache „%1“; die Sprachen sind: %2</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;; the pages are: %2</source>
        <translation>Es gibt keine Seite „%1“; die Seiten sind: %2</translation>
    </message>
    <message>
        <source>--screenshot needs a directory</source>
        <translation>--screenshot braucht ein Verzeichnis</translation>
    </message>
</context>
</TS>
