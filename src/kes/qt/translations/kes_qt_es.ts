<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>kes::qt::FileHistory</name>
    <message>
        <source>Recent Files</source>
        <translation>Archivos recientes</translation>
    </message>
</context>
<context>
    <name>kes::qt::FileHistory2</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Proyectos recientes</translation>
    </message>
</context>
<context>
    <name>kes::qt::colorrangefinder::Dialog</name>
    <message>
        <source>Show result</source>
        <translation>Mostrar resultado</translation>
    </message>
    <message>
        <source>Freeze image</source>
        <translation>Congelar imagen</translation>
    </message>
    <message>
        <source>Copy values to clipboard</source>
        <translation>Copiar valores al portapapeles</translation>
    </message>
    <message>
        <source>Paste values from clipboard</source>
        <translation>Pegar valores del portapapeles</translation>
    </message>
</context>
<context>
    <name>kes::qt::colorrangefinder::SpinBoxGroup</name>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
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
    <name>kes::qt::exportdialogs::ImgExportDialog</name>
    <message>
        <source>Image export</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Calidad:</translation>
    </message>
    <message>
        <source>Enable compression</source>
        <translation>Activar compresión</translation>
    </message>
    <message>
        <source>Check this if you want to customize the image&apos;s quality</source>
        <translation>Marque esta casilla para elegir usted mismo la calidad de la imagen</translation>
    </message>
    <message>
        <source>Adjust quality (if supported by the chosen format)</source>
        <translation>Ajustar la calidad (si el formato elegido lo admite)</translation>
    </message>
    <message>
        <source>Enable lossless compression (if supported by the chosen format)</source>
        <translation>Activar la compresión sin pérdidas (si el formato elegido lo admite)</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::BalloonToolTip</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::WebDialog</name>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
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
    <name>kes::qt::scope::ChannelMenu</name>
    <message>
        <source>All channels</source>
        <translation>Todos los canales</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Amplification</source>
        <translation>Amplificación</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Disparo</translation>
    </message>
    <message>
        <source>%1ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 / Div</source>
        <translation>%1 / div</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>Rising edge</source>
        <translation>Flanco ascendente</translation>
    </message>
    <message>
        <source>Falling edge</source>
        <translation>Flanco descendente</translation>
    </message>
    <message>
        <source>Set color</source>
        <translation>Elegir color</translation>
    </message>
</context>
<context>
    <name>kes::qt::scope::View</name>
    <message>
        <source>Enable %1</source>
        <translation>Activar %1</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Copiar como imagen</translation>
    </message>
    <message>
        <source>Copy as Data</source>
        <translation>Copiar como datos</translation>
    </message>
    <message>
        <source>Ch%1  %2/XDiv  %3/YDiv</source>
        <translation>Can%1  %2/XDiv  %3/YDiv</translation>
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
