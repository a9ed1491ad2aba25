<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>kes::qt::discreteapproximator::ContextMenu</name>
    <message>
        <source>Insert point before</source>
        <translation>Insérer un point avant</translation>
    </message>
    <message>
        <source>Insert point after</source>
        <translation>Insérer un point après</translation>
    </message>
    <message>
        <source>Remove point</source>
        <translation>Supprimer le point</translation>
    </message>
    <message>
        <source>Import from clipboard</source>
        <translation>Importer depuis le presse-papiers</translation>
    </message>
    <message>
        <source>Export to clipboard</source>
        <translation>Exporter vers le presse-papiers</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::View</name>
    <message>
        <source>Graphics</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::schematic::View</name>
    <message>
        <source>Insert point</source>
        <translation>Insérer un point</translation>
    </message>
</context>
<context>
    <name>kes::qt::log::Window</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>kes::qt::translation::Menu</name>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Langues</translation>
    </message>
</context>
</TS>
