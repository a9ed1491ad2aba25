<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Stands in for Qt's own catalogue: the undo action takes its word from there. -->
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
</TS>
