<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>kes::qt::FileHistory</name>
    <message>
        <source>Recent Files</source>
        <translation>Zuletzt geöffnete Dateien</translation>
    </message>
</context>
<context>
    <name>kes::qt::FileHistory2</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Letzte Projekte</translation>
    </message>
</context>
<context>
    <name>kes::qt::colorrangefinder::Dialog</name>
    <message>
        <source>Show result</source>
        <translation>Ergebnis zeigen</translation>
    </message>
    <message>
        <source>Freeze image</source>
        <translation>Bild einfrieren</translation>
    </message>
    <message>
        <source>Copy values to clipboard</source>
        <translation>Werte in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Paste values from clipboard</source>
        <translation>Werte aus der Zwischenablage einfügen</translation>
    </message>
</context>
<context>
    <name>kes::qt::colorrangefinder::SpinBoxGroup</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Helligkeit</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::ContextMenu</name>
    <message>
        <source>Insert point before</source>
        <translation>Punkt davor einfügen</translation>
    </message>
    <message>
        <source>Insert point after</source>
        <translation>Punkt danach einfügen</translation>
    </message>
    <message>
        <source>Remove point</source>
        <translation>Punkt entfernen</translation>
    </message>
    <message>
        <source>Import from clipboard</source>
        <translation>Aus der Zwischenablage importieren</translation>
    </message>
    <message>
        <source>Export to clipboard</source>
        <translation>In die Zwischenablage exportieren</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::View</name>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::schematic::View</name>
    <message>
        <source>Insert point</source>
        <translation>Punkt einfügen</translation>
    </message>
</context>
<context>
    <name>kes::qt::exportdialogs::ImgExportDialog</name>
    <message>
        <source>Image export</source>
        <translation>Bildexport</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <source>Enable compression</source>
        <translation>Komprimierung aktivieren</translation>
    </message>
    <message>
        <source>Check this if you want to customize the image&apos;s quality</source>
        <translation>Aktivieren Sie dies, um die Qualität des Bildes selbst festzulegen</translation>
    </message>
    <message>
        <source>Adjust quality (if supported by the chosen format)</source>
        <translation>Qualität einstellen (sofern das gewählte Format dies unterstützt)</translation>
    </message>
    <message>
        <source>Enable lossless compression (if supported by the chosen format)</source>
        <translation>Verlustfreie Komprimierung aktivieren (sofern das gewählte Format dies unterstützt)</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::BalloonToolTip</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::WebDialog</name>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
</context>
<context>
    <name>kes::qt::log::Window</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>kes::qt::scope::ChannelMenu</name>
    <message>
        <source>All channels</source>
        <translation>Alle Kanäle</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Deaktivieren</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Amplification</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>%1ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 / Div</source>
        <translation>%1 / Div</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Rising edge</source>
        <translation>Steigende Flanke</translation>
    </message>
    <message>
        <source>Falling edge</source>
        <translation>Fallende Flanke</translation>
    </message>
    <message>
        <source>Set color</source>
        <translation>Farbe wählen</translation>
    </message>
</context>
<context>
    <name>kes::qt::scope::View</name>
    <message>
        <source>Enable %1</source>
        <translation>%1 aktivieren</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Als Bild kopieren</translation>
    </message>
    <message>
        <source>Copy as Data</source>
        <translation>Als Daten kopieren</translation>
    </message>
    <message>
        <source>Ch%1  %2/XDiv  %3/YDiv</source>
        <translation>K%1  %2/XDiv  %3/YDiv</translation>
    </message>
</context>
<context>
    <name>kes::qt::translation::Menu</name>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Sprachen</translation>
    </message>
</context>
</TS>
