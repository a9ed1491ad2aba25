<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
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
    <name>kes::qt::log::Window</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
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
