<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>kes::qt::discreteapproximator::ContextMenu</name>
    <message>
        <source>Insert point before</source>
        <translation>Insertar punto antes</translation>
    </message>
    <message>
        <source>Insert point after</source>
        <translation>Insertar punto después</translation>
    </message>
    <message>
        <source>Remove point</source>
        <translation>Eliminar punto</translation>
    </message>
    <message>
        <source>Import from clipboard</source>
        <translation>Importar del portapapeles</translation>
    </message>
    <message>
        <source>Export to clipboard</source>
        <translation>Exportar al portapapeles</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::View</name>
    <message>
        <source>Graphics</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
</context>
<context>
    <name>kes::qt::discreteapproximator::schematic::View</name>
    <message>
        <source>Insert point</source>
        <translation>Insertar punto</translation>
    </message>
</context>
<context>
    <name>kes::qt::log::Window</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>kes::qt::translation::Menu</name>
    <message>
        <source>&amp;Languages</source>
        <translation>&amp;Idiomas</translation>
    </message>
</context>
</TS>
