<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>kes::gallery::AboutPage</name>
    <message>
        <source>Not a readable image</source>
        <translation>Imagen no legible</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Qt widgets and helpers for robotics and machine-vision tools</source>
        <translation>Widgets y utilidades Qt para robótica y visión artificial</translation>
    </message>
    <message>
        <source>%1 is a Qt 5 widget library for desktop tools in robotics and machine vision: the views, editors and small helpers that such tools need again and again. Each page of this gallery shows one part of it.</source>
        <translation>%1 es una biblioteca de widgets Qt 5 para herramientas de escritorio de robótica y visión artificial: vistas, editores y pequeñas utilidades que esas herramientas necesitan una y otra vez. Cada página de la galería muestra una parte.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versiones</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (the gallery was built against %2)</source>
        <translation>%1 (la galería se compiló con la versión %2)</translation>
    </message>
    <message>
        <source>Qt at run time:</source>
        <translation>Qt al ejecutar:</translation>
    </message>
    <message>
        <source>Qt at compile time:</source>
        <translation>Qt al compilar:</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Iconos</translation>
    </message>
    <message>
        <source>Compiled into the library&apos;s resources under %1</source>
        <translation>Compilados en los recursos de la biblioteca, bajo %1</translation>
    </message>
    <message>
        <source>No icons found under %1.</source>
        <translation>No se encontraron iconos bajo %1.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::MainWindow</name>
    <message>
        <source>libkes_qt gallery</source>
        <translation>Galería de libkes_qt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Acerca de &amp;Qt</translation>
    </message>
</context>
<context>
    <name>kes::gallery::ScopePage</name>
    <message>
        <source>Scope</source>
        <translation>Osciloscopio</translation>
    </message>
    <message>
        <source>Sixteen channels at 1 kHz</source>
        <translation>Dieciséis canales a 1 kHz</translation>
    </message>
    <message>
        <source>Synthetic sine, square, sawtooth and noisy signals arrive every 20 ms and the plot is redrawn 30 times a second. Channel 1 sweeps from a rising edge and channel 2 follows it; the others run free with the newest sample at the right edge. Choose a channel with the colour buttons, drag its zero line (left) or trigger level (right), and right-click for time base, amplification, trigger, colour and the clipboard exports.</source>
        <translation>Señales sintéticas senoidales, cuadradas, en diente de sierra y con ruido llegan cada 20 ms y el gráfico se redibuja 30 veces por segundo. El canal 1 barre desde un flanco ascendente y el canal 2 lo sigue; los demás corren libres con la muestra más reciente en el borde derecho. Elija un canal con los botones de color, arrastre su línea de cero (izquierda) o su nivel de disparo (derecha) y haga clic con el botón derecho para la base de tiempo, la amplificación, el disparo, el color y las exportaciones al portapapeles.</translation>
    </message>
    <message>
        <source>&amp;Channels:</source>
        <translation>&amp;Canales:</translation>
    </message>
    <message>
        <source>Trigger &amp;level:</source>
        <translation>&amp;Nivel de disparo:</translation>
    </message>
    <message>
        <source>Last signal:</source>
        <translation>Última señal:</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ninguna todavía</translation>
    </message>
</context>
<context>
    <name>kes::gallery::TranslationPage</name>
    <message>
        <source>Translation</source>
        <translation>Traducción</translation>
    </message>
    <message>
        <source>Two kinds of translation</source>
        <translation>Dos tipos de traducción</translation>
    </message>
    <message>
        <source>The library&apos;s widgets translate their texts with Qt&apos;s tr() and the message files (.qm) compiled into the library. On a change of language the manager installs the new ones and every widget re-labels itself, like the title of the Languages menu.</source>
        <translation>Los widgets de la biblioteca traducen sus textos con la función tr() de Qt y los archivos de mensajes (.qm) compilados en la biblioteca. Al cambiar de idioma, el gestor instala los nuevos y cada widget actualiza sus rótulos, como el título del menú «Idiomas».</translation>
    </message>
    <message>
        <source>Application texts can come from XML translation files, loaded into a container. Arguments in square brackets are cut out to find a text and put back into its translation, in their order; a bracket after a backslash is a literal one.</source>
        <translation>Los textos de la aplicación pueden venir de archivos de traducción XML cargados en un contenedor. Los argumentos entre corchetes se quitan para buscar un texto y se reinsertan en su traducción, en su orden; un corchete tras una barra invertida es literal.</translation>
    </message>
    <message>
        <source>Current language:</source>
        <translation>Idioma actual:</translation>
    </message>
    <message>
        <source>Choose another one in the Languages menu.</source>
        <translation>Elija otro en el menú «Idiomas».</translation>
    </message>
    <message>
        <source>Application texts</source>
        <translation>Textos de la aplicación</translation>
    </message>
    <message>
        <source>Cannot read the translation file %1.</source>
        <translation>No se puede leer el archivo de traducción %1.</translation>
    </message>
    <message>
        <source>Cannot read the translation file %1: %2</source>
        <translation>No se puede leer el archivo de traducción %1: %2</translation>
    </message>
    <message>
        <source>Some texts of %1 were skipped: %2</source>
        <translation>Se omitieron algunos textos de %1: %2</translation>
    </message>
    <message>
        <source>%1 texts from %2, translated into %3</source>
        <translation>%1 textos de %2, traducidos a %3</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Texto fuente</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Double-click a source text to edit it. A text that the file does not hold stays as it is, in grey.</source>
        <translation>Haga doble clic en un texto fuente para editarlo. Si falta en el archivo, queda tal cual, en gris.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Not in the translation file: shown as it is.</source>
        <translation>No está en el archivo de traducción: se muestra tal cual.</translation>
    </message>
    <message>
        <source>No translation into &quot;%1&quot;: the key, with the arguments put back.</source>
        <translation>No hay traducción para «%1»: la clave, con los argumentos reinsertados.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::writeScreenshots</name>
    <message>
        <source>Cannot create the directory %1</source>
        <translation>No se puede crear el directorio %1</translation>
    </message>
    <message>
        <source>Cannot write the screenshot %1</source>
        <translation>No se puede escribir la captura de pantalla %1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Saves a picture of the window with each page as &lt;dir&gt;/&lt;page id&gt;.png, then exits.</source>
        <translation>Guarda una imagen de la ventana con cada página como &lt;dir&gt;/&lt;id de la página&gt;.png y termina.</translation>
    </message>
    <message>
        <source>Shows the page &lt;id&gt; at start-up.</source>
        <translation>Muestra la página &lt;id&gt; al iniciar.</translation>
    </message>
    <message>
        <source>Starts in the language &lt;code&gt; (en, de, ...) instead of the stored one; screenshots are in English without it.</source>
        <translation>Inicia en el idioma &lt;code&gt; (en, de, ...) en lugar del guardado; sin esta opción, las capturas de pantalla están en inglés.</translation>
    </message>
    <message>
        <source>Shows the widgets of libkes_qt, one page each.</source>
        <translation>Muestra los widgets de libkes_qt, una página para cada parte.</translation>
    </message>
    <message>
        <source>Cannot create a temporary directory for the settings: %1</source>
        <translation>No se puede crear un directorio temporal para la configuración: %1</translation>
    </message>
    <message>
        <source>Cannot read the language list %1</source>
        <translation>No se puede leer la lista de idiomas %1</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argumento inesperado: %1</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;; the languages are: %2</source>
        <translation>No existe el idioma «%1»; los idiomas son: %2</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;; the pages are: %2</source>
        <translation>No existe la página «%1»; las páginas son: %2</translation>
    </message>
    <message>
        <source>--screenshot needs a directory</source>
        <translation>--screenshot necesita un directorio</translation>
    </message>
</context>
</TS>
