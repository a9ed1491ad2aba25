<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>DO NOT TRANSLATE!</comment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <comment>DO NOT TRANSLATE!</comment>
        <translation>Wiederholen</translation>
    </message>
</context>
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
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>API reference:</source>
        <translation>API-Referenz:</translation>
    </message>
    <message>
        <source>Qt help file:</source>
        <translation>Qt-Hilfedatei:</translation>
    </message>
    <message>
        <source>not generated</source>
        <translation>nicht erzeugt</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CameraPage</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Colour ranges from a live camera</source>
        <translation>Farbbereiche aus einer laufenden Kamera</translation>
    </message>
    <message>
        <source>A synthetic camera delivers 30 frames a second: four coloured balls over a cloth, with sensor noise. Drag a rectangle over a ball to measure its hue, saturation and value ranges; the page then finds every blob within them and marks it. &quot;Show result&quot; shows the page&apos;s segmentation, &quot;Freeze image&quot; holds the picture, and the buttons copy the ranges to the clipboard and paste them back.</source>
        <translation>Eine synthetische Kamera liefert 30 Bilder pro Sekunde: vier farbige Kugeln auf einem Tuch, mit Sensorrauschen. Ziehen Sie ein Rechteck über eine Kugel, um ihre Farbton-, Sättigungs- und Helligkeitsbereiche zu messen; die Seite findet dann jeden Fleck innerhalb dieser Bereiche und markiert ihn. &quot;Ergebnis zeigen&quot; zeigt die Segmentierung der Seite, &quot;Bild einfrieren&quot; hält das Bild an, und die Schaltflächen kopieren die Bereiche in die Zwischenablage und fügen sie wieder ein.</translation>
    </message>
    <message>
        <source>Ranges: %1    Blobs found: %2</source>
        <translation>Bereiche: %1    Gefundene Flecken: %2</translation>
    </message>
    <message>
        <source>Save &amp;frame…</source>
        <translation>Bild &amp;speichern…</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CurveEdit</name>
    <message>
        <source>Move point %1</source>
        <translation>Punkt %1 verschieben</translation>
    </message>
    <message>
        <source>Insert point %1</source>
        <translation>Punkt %1 einfügen</translation>
    </message>
    <message>
        <source>Remove point %1</source>
        <translation>Punkt %1 entfernen</translation>
    </message>
    <message>
        <source>Paste points</source>
        <translation>Punkte einfügen</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CurveEditorPage</name>
    <message>
        <source>Curve editor</source>
        <translation>Kennlinien-Editor</translation>
    </message>
    <message>
        <source>Characteristic of a proportional valve</source>
        <translation>Kennlinie eines Proportionalventils</translation>
    </message>
    <message>
        <source>The opening of a valve over its control voltage, as a table of points joined by straight lines. Drag a point in the graph, or edit it in the table; a right click inserts and removes points and exchanges the whole list with the clipboard as lines of x and y.</source>
        <translation>Die Öffnung eines Ventils über seiner Steuerspannung, als Tabelle von Punkten, die durch Geraden verbunden sind. Ziehen Sie einen Punkt in der Grafik oder bearbeiten Sie ihn in der Tabelle; ein Rechtsklick fügt Punkte ein, entfernt sie und tauscht die ganze Liste als Zeilen aus x und y mit der Zwischenablage aus.</translation>
    </message>
    <message>
        <source>Admissible: %1 to %2 V, %3 to %4 %. A point cannot pass its neighbours in x; a refused coordinate keeps its value.</source>
        <translation>Zulässig: %1 bis %2 V, %3 bis %4 %. Ein Punkt kann seine Nachbarn in x nicht überholen; eine abgelehnte Koordinate behält ihren Wert.</translation>
    </message>
    <message>
        <source>U [V]</source>
        <translation>U [V]</translation>
    </message>
    <message>
        <source>Opening [%]</source>
        <translation>Öffnung [%]</translation>
    </message>
    <message>
        <source>Operating point:</source>
        <translation>Arbeitspunkt:</translation>
    </message>
    <message>
        <source>Point list received</source>
        <translation>Empfangene Punktliste</translation>
    </message>
    <message>
        <source>%1 V → %2 %</source>
        <translation>%1 V → %2 %</translation>
    </message>
    <message>
        <source>dataChanged() received: %1</source>
        <translation>dataChanged() empfangen: %1</translation>
    </message>
</context>
<context>
    <name>kes::gallery::FilesOptionPage</name>
    <message>
        <source>There is no folder &quot;%1&quot;. Enter an existing folder.</source>
        <translation>Es gibt keinen Ordner „%1“. Geben Sie einen vorhandenen Ordner an.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Open starts in:</source>
        <translation>Ö&amp;ffnen beginnt in:</translation>
    </message>
</context>
<context>
    <name>kes::gallery::FrameRateOptionPage</name>
    <message>
        <source>Frame rates</source>
        <translation>Bildraten</translation>
    </message>
    <message>
        <source>How often the live pages redraw while they are shown.</source>
        <translation>Wie oft die Live-Seiten neu zeichnen, während sie angezeigt werden.</translation>
    </message>
    <message>
        <source> per second</source>
        <translation> pro Sekunde</translation>
    </message>
</context>
<context>
    <name>kes::gallery::ImageSaving</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>Es gibt noch kein Bild zum Speichern.</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>JPEG-Bild (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>TIFF image (*.tif *.tiff)</source>
        <translation>TIFF-Bild (*.tif *.tiff)</translation>
    </message>
    <message>
        <source>BMP image (*.bmp)</source>
        <translation>BMP-Bild (*.bmp)</translation>
    </message>
    <message>
        <source>Save as image</source>
        <translation>Als Bild speichern</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>%1 konnte nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
</context>
<context>
    <name>kes::gallery::InputWidgetsPage</name>
    <message>
        <source>Input widgets</source>
        <translation>Eingabefelder</translation>
    </message>
    <message>
        <source>Camera parameters</source>
        <translation>Kameraparameter</translation>
    </message>
    <message>
        <source>Gain, black level and trigger mode turn light blue while a new value is typed: Return or leaving the field commits it, Escape brings back the committed one, and Return on an unchanged number sends nothing. The exposure takes any double in plain or exponent notation (2e-3) and its arrows step by decades; the sensor register is typed in hexadecimal.</source>
        <translation>Verstärkung, Schwarzwert und Triggermodus werden hellblau, während ein neuer Wert getippt wird: Return oder das Verlassen des Feldes übernimmt ihn, Escape holt den übernommenen zurück, und Return auf einer unveränderten Zahl sendet nichts. Die Belichtung nimmt jede Gleitkommazahl in einfacher oder Exponentenschreibweise (2e-3), ihre Pfeile schalten um Dekaden; das Sensorregister wird hexadezimal eingegeben.</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Kamera 1</translation>
    </message>
    <message>
        <source>Exposure [s]:</source>
        <translation>Belichtung [s]:</translation>
    </message>
    <message>
        <source>Gain:</source>
        <translation>Verstärkung:</translation>
    </message>
    <message>
        <source>Black level:</source>
        <translation>Schwarzwert:</translation>
    </message>
    <message>
        <source>Trigger mode:</source>
        <translation>Triggermodus:</translation>
    </message>
    <message>
        <source>Register address</source>
        <translation>Registeradresse</translation>
    </message>
    <message>
        <source>Register value</source>
        <translation>Registerwert</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Frame rate [fps]</source>
        <translation>Bildrate [fps]</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Pixelformat</translation>
    </message>
    <message>
        <source>Colour while editing</source>
        <translation>Farbe beim Bearbeiten</translation>
    </message>
    <message>
        <source>Highlight the gain</source>
        <translation>Verstärkung hervorheben</translation>
    </message>
    <message>
        <source>Signals received</source>
        <translation>Empfangene Signale</translation>
    </message>
    <message>
        <source>Gain, black level and trigger mode share one slot per signal signature; the user data names the parameter.</source>
        <translation>Verstärkung, Schwarzwert und Triggermodus teilen sich einen Slot pro Signalsignatur; die Benutzerdaten nennen den Parameter.</translation>
    </message>
    <message>
        <source>black level</source>
        <translation>Schwarzwert</translation>
    </message>
    <message>
        <source>gain</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>trigger mode</source>
        <translation>Triggermodus</translation>
    </message>
    <message>
        <source>exposure</source>
        <translation>Belichtung</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LanguageOptionPage</name>
    <message>
        <source>Start language</source>
        <translation>Startsprache</translation>
    </message>
    <message>
        <source>&amp;Language at start:</source>
        <translation>&amp;Sprache beim Start:</translation>
    </message>
    <message>
        <source>Takes effect when the gallery starts next. The Languages menu switches at once, and the gallery starts in the language chosen last.</source>
        <translation>Gilt beim nächsten Start der Galerie. Das Sprachmenü schaltet sofort um, und die Galerie startet in der zuletzt gewählten Sprache.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LaserPage</name>
    <message>
        <source>Laser scanner</source>
        <translation>Laserscanner</translation>
    </message>
    <message>
        <source>A laser scanner in a room</source>
        <translation>Ein Laserscanner in einem Raum</translation>
    </message>
    <message>
        <source>A simulated scanner sweeps 270° in half-degree steps 25 times a second, forward pointing up. A person walks about; reflector strips on the walls answer with a strong echo (yellow), beams through the open door find nothing, and now and then a beam is lost. Click to zoom in (left) or out (right) where you click, or use the wheel; the middle button fits the view. The red sector marks an analysis window.</source>
        <translation>Ein simulierter Scanner tastet 25-mal in der Sekunde 270° in Schritten von einem halben Grad ab, vorwärts zeigt nach oben. Eine Person geht umher; Reflektorstreifen an den Wänden antworten mit einem starken Echo (gelb), Strahlen durch die offene Tür treffen nichts, und hin und wieder geht ein Strahl verloren. Klicken Sie zum Vergrößern (links) oder Verkleinern (rechts) an der geklickten Stelle, oder benutzen Sie das Mausrad; die mittlere Taste zeigt alles. Der rote Sektor markiert ein Auswertefenster.</translation>
    </message>
    <message>
        <source>Analysis sector</source>
        <translation>Auswertesektor</translation>
    </message>
    <message>
        <source>&amp;Direction:</source>
        <translation>&amp;Richtung:</translation>
    </message>
    <message>
        <source>&amp;Opening:</source>
        <translation>Ö&amp;ffnung:</translation>
    </message>
    <message>
        <source>Di&amp;stance:</source>
        <translation>&amp;Entfernung:</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>Ein&amp;passen</translation>
    </message>
    <message>
        <source>Save as &amp;image…</source>
        <translation>Als &amp;Bild speichern…</translation>
    </message>
    <message>
        <source>Echoes in the sector: %1</source>
        <translation>Echos im Sektor: %1</translation>
    </message>
    <message>
        <source>%1 beams per scan, %2 scans a second; %3 beams without a range in the last scan</source>
        <translation>%1 Strahlen pro Scan, %2 Scans pro Sekunde; %3 Strahlen ohne Entfernung im letzten Scan</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LogPage</name>
    <message>
        <source>&amp;Log window</source>
        <translation>&amp;Protokollfenster</translation>
    </message>
    <message>
        <source>The log hub</source>
        <translation>Die Protokollzentrale</translation>
    </message>
    <message>
        <source>Messages from every part of an application gather in one process-wide log and show in the log window docked below (View menu). Any thread may post; the GUI thread writes whatever has arrived in one go, so that a flood of messages never stalls it. The newest 100 lines are kept.</source>
        <translation>Meldungen aus allen Teilen einer Anwendung laufen in einem prozessweiten Protokoll zusammen und erscheinen im unten angedockten Protokollfenster (Menü Ansicht). Jeder Thread darf Meldungen schicken; der GUI-Thread schreibt alles Angekommene in einem Zug, so dass ihn auch eine Flut von Meldungen nie aufhält. Die neuesten 100 Zeilen bleiben erhalten.</translation>
    </message>
    <message>
        <source>From the GUI thread</source>
        <translation>Aus dem GUI-Thread</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Leerzeile</translation>
    </message>
    <message>
        <source>Log the same message again: instead of a new line, the last one gets a dot for every repeat.</source>
        <translation>Dieselbe Meldung noch einmal protokollieren: Statt einer neuen Zeile erhält die letzte für jede Wiederholung einen Punkt.</translation>
    </message>
    <message>
        <source>From worker threads</source>
        <translation>Aus Arbeits-Threads</translation>
    </message>
    <message>
        <source>Threads:</source>
        <translation>Threads:</translation>
    </message>
    <message>
        <source>Messages per second and thread:</source>
        <translation>Meldungen pro Sekunde und Thread:</translation>
    </message>
    <message>
        <source>Redirected stream and core library</source>
        <translation>Umgeleiteter Stream und Kernbibliothek</translation>
    </message>
    <message>
        <source>Write to std::cout</source>
        <translation>Nach std::cout schreiben</translation>
    </message>
    <message>
        <source>Log through the core library</source>
        <translation>Über die Kernbibliothek protokollieren</translation>
    </message>
    <message>
        <source>std::cout is taken over while the button writes three lines and an unfinished one, which is posted when the stream gets its buffer back; its bytes are read as Latin-1. The core library&apos;s log is called from a worker thread, in UTF-8.</source>
        <translation>std::cout wird übernommen, während die Schaltfläche drei Zeilen und eine unvollständige schreibt, die geschickt wird, wenn der Stream seinen Puffer zurückbekommt; seine Bytes werden als Latin-1 gelesen. Das Protokoll der Kernbibliothek wird aus einem Arbeits-Thread aufgerufen, in UTF-8.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>%1 messages posted</source>
        <translation>%1 Meldungen geschickt</translation>
    </message>
    <message>
        <source>Log</source>
        <comment>page list entry</comment>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Log</source>
        <comment>button that writes the message</comment>
        <translation>Protokollieren</translation>
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
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 existiert nicht mehr</translation>
    </message>
    <message>
        <source>Opened %1 (%2 bytes)</source>
        <translation>%1 geöffnet (%2 Bytes)</translation>
    </message>
</context>
<context>
    <name>kes::gallery::OptionsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Live pages</source>
        <translation>Live-Seiten</translation>
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
    <name>kes::gallery::SmallWidgetsPage</name>
    <message>
        <source>Small widgets</source>
        <translation>Kleine Widgets</translation>
    </message>
    <message>
        <source>Messages, progress and helpers</source>
        <translation>Meldungen, Fortschritt und Helfer</translation>
    </message>
    <message>
        <source>Balloons fade in next to the control they talk about and fade out after ten seconds or on a click; hovering keeps them. The calibration shows a busy indicator whose Cancel stops it, and only a finished calibration ticks the read-only box.</source>
        <translation>Sprechblasen blenden sich neben dem Element ein, um das es geht, und nach zehn Sekunden oder auf einen Klick wieder aus; solange die Maus darauf ruht, bleiben sie. Die Kalibrierung zeigt eine Fortschrittsanzeige, deren „Abbrechen“ sie beendet, und nur eine abgeschlossene Kalibrierung setzt das schreibgeschützte Häkchen.</translation>
    </message>
    <message>
        <source>Balloon messages</source>
        <translation>Sprechblasen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>At the window&apos;s edge</source>
        <translation>Am Fensterrand</translation>
    </message>
    <message>
        <source>Camera calibration</source>
        <translation>Kamerakalibrierung</translation>
    </message>
    <message>
        <source>Start calibration</source>
        <translation>Kalibrierung starten</translation>
    </message>
    <message>
        <source>Camera 2 calibrated</source>
        <translation>Kamera 2 kalibriert</translation>
    </message>
    <message>
        <source>Undistort the live image</source>
        <translation>Livebild entzerren</translation>
    </message>
    <message>
        <source>The first box is read-only: neither clicks nor the Space key change it, only the calibration does. The second one is a plain check box.</source>
        <translation>Das erste Kästchen ist schreibgeschützt: Weder Klicks noch die Leertaste ändern es, nur die Kalibrierung. Das zweite ist ein gewöhnliches Kontrollkästchen.</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Dokumentation</translation>
    </message>
    <message>
        <source>Calibration tutorial</source>
        <translation>Anleitung zur Kalibrierung</translation>
    </message>
    <message>
        <source>&amp;Part number:</source>
        <translation>&amp;Teilenummer:</translation>
    </message>
    <message>
        <source>Help on part numbers</source>
        <translation>Hilfe zu Teilenummern</translation>
    </message>
    <message>
        <source>Open the help</source>
        <translation>Hilfe öffnen</translation>
    </message>
    <message>
        <source>Spindle speed</source>
        <translation>Spindeldrehzahl</translation>
    </message>
    <message>
        <source>The reading takes the largest font that fits: drag the splitter handle.</source>
        <translation>Die Anzeige nimmt die größte Schrift, die hineinpasst: Ziehen Sie den Teiler.</translation>
    </message>
    <message>
        <source>Drag the handle on the left</source>
        <translation>Ziehen Sie den Teiler links</translation>
    </message>
    <message>
        <source>Calibration saved</source>
        <translation>Kalibrierung gespeichert</translation>
    </message>
    <message>
        <source>Camera 2 uses the new intrinsics from the next frame on.</source>
        <translation>Kamera 2 verwendet ab dem nächsten Bild die neuen inneren Parameter.</translation>
    </message>
    <message>
        <source>Exposure clipped</source>
        <translation>Belichtung übersteuert</translation>
    </message>
    <message>
        <source>12 % of the pixels are saturated. Lower the gain or the exposure time.</source>
        <translation>12 % der Pixel sind gesättigt. Verringern Sie die Verstärkung oder die Belichtungszeit.</translation>
    </message>
    <message>
        <source>Laser scanner offline</source>
        <translation>Laserscanner nicht erreichbar</translation>
    </message>
    <message>
        <source>No scan from 192.168.0.41 for 3 s. Check the cable and the scanner&apos;s power supply.</source>
        <translation>Seit 3 s kein Scan von 192.168.0.41. Prüfen Sie das Kabel und die Stromversorgung des Scanners.</translation>
    </message>
    <message>
        <source>At the edge</source>
        <translation>Am Rand</translation>
    </message>
    <message>
        <source>This balloon asked to open above and to the right of the button&apos;s corner. Where the screen ends, it opens on the other side, its tip still on the corner.</source>
        <translation>Diese Sprechblase wollte sich oberhalb und rechts der Ecke der Schaltfläche öffnen. Wo der Bildschirm endet, öffnet sie sich auf der anderen Seite, ihre Spitze bleibt auf der Ecke.</translation>
    </message>
    <message>
        <source>Calibrating camera 2: image %1 of %2</source>
        <translation>Kalibriere Kamera 2: Bild %1 von %2</translation>
    </message>
    <message>
        <source>Camera 2 has not been calibrated yet.</source>
        <translation>Kamera 2 ist noch nicht kalibriert.</translation>
    </message>
    <message>
        <source>Calibration finished: mean reprojection error 0.21 px over %1 images.</source>
        <translation>Kalibrierung abgeschlossen: mittlerer Rückprojektionsfehler 0,21 px über %1 Bilder.</translation>
    </message>
    <message>
        <source>Calibration cancelled after %1 of %2 images; the previous calibration stays in use.</source>
        <translation>Kalibrierung nach %1 von %2 Bildern abgebrochen; die bisherige Kalibrierung bleibt in Gebrauch.</translation>
    </message>
    <message>
        <source>Unknown part number</source>
        <translation>Unbekannte Teilenummer</translation>
    </message>
    <message>
        <source>Part numbers read KES, four digits and a revision letter, e.g. KES-4711-B.</source>
        <translation>Teilenummern bestehen aus KES, vier Ziffern und einem Revisionsbuchstaben, z. B. KES-4711-B.</translation>
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
    <message>
        <source>The page %1 needs a window of %2 × %3 pixels</source>
        <translation>Die Seite %1 braucht ein Fenster von %2 × %3 Pixeln</translation>
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
