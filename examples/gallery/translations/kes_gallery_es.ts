<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>DO NOT TRANSLATE!</comment>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <comment>DO NOT TRANSLATE!</comment>
        <translation>Rehacer</translation>
    </message>
</context>
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
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>API reference:</source>
        <translation>Referencia de la API:</translation>
    </message>
    <message>
        <source>Qt help file:</source>
        <translation>Archivo de ayuda de Qt:</translation>
    </message>
    <message>
        <source>not generated</source>
        <translation>no disponible</translation>
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
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Colour ranges from a live camera</source>
        <translation>Rangos de color de una cámara en directo</translation>
    </message>
    <message>
        <source>A synthetic camera delivers 30 frames a second: four coloured balls over a cloth, with sensor noise. Drag a rectangle over a ball to measure its hue, saturation and value ranges; the page then finds every blob within them and marks it. &quot;Show result&quot; shows the page&apos;s segmentation, &quot;Freeze image&quot; holds the picture, and the buttons copy the ranges to the clipboard and paste them back.</source>
        <translation>Una cámara sintética entrega 30 imágenes por segundo: cuatro bolas de colores sobre una tela, con ruido de sensor. Arrastre un rectángulo sobre una bola para medir sus rangos de tono, saturación y valor; la página encuentra entonces cada mancha dentro de ellos y la marca. &quot;Mostrar resultado&quot; muestra la segmentación de la página, &quot;Congelar imagen&quot; detiene la imagen y los botones copian los rangos al portapapeles y los pegan de nuevo.</translation>
    </message>
    <message>
        <source>Ranges: %1    Blobs found: %2</source>
        <translation>Rangos: %1    Manchas encontradas: %2</translation>
    </message>
    <message>
        <source>Save &amp;frame…</source>
        <translation>Guardar &amp;fotograma…</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CurveEdit</name>
    <message>
        <source>Move point %1</source>
        <translation>Mover el punto %1</translation>
    </message>
    <message>
        <source>Insert point %1</source>
        <translation>Insertar el punto %1</translation>
    </message>
    <message>
        <source>Remove point %1</source>
        <translation>Eliminar el punto %1</translation>
    </message>
    <message>
        <source>Paste points</source>
        <translation>Pegar los puntos</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CurveEditorPage</name>
    <message>
        <source>Curve editor</source>
        <translation>Editor de curvas</translation>
    </message>
    <message>
        <source>Characteristic of a proportional valve</source>
        <translation>Característica de una válvula proporcional</translation>
    </message>
    <message>
        <source>The opening of a valve over its control voltage, as a table of points joined by straight lines. Drag a point in the graph, or edit it in the table; a right click inserts and removes points and exchanges the whole list with the clipboard as lines of x and y.</source>
        <translation>La apertura de una válvula según su tensión de control, como una tabla de puntos unidos por rectas. Arrastre un punto en el gráfico o edítelo en la tabla; un clic derecho inserta y elimina puntos e intercambia toda la lista con el portapapeles como líneas de x e y.</translation>
    </message>
    <message>
        <source>Admissible: %1 to %2 V, %3 to %4 %. A point cannot pass its neighbours in x; a refused coordinate keeps its value.</source>
        <translation>Admisible: de %1 a %2 V, de %3 a %4 %. Un punto no puede pasar a sus vecinos en x; una coordenada rechazada conserva su valor.</translation>
    </message>
    <message>
        <source>U [V]</source>
        <translation>U [V]</translation>
    </message>
    <message>
        <source>Opening [%]</source>
        <translation>Apertura [%]</translation>
    </message>
    <message>
        <source>Operating point:</source>
        <translation>Punto de trabajo:</translation>
    </message>
    <message>
        <source>Point list received</source>
        <translation>Lista de puntos recibida</translation>
    </message>
    <message>
        <source>%1 V → %2 %</source>
        <translation>%1 V → %2 %</translation>
    </message>
    <message>
        <source>dataChanged() received: %1</source>
        <translation>dataChanged() recibidos: %1</translation>
    </message>
</context>
<context>
    <name>kes::gallery::FilesOptionPage</name>
    <message>
        <source>There is no folder &quot;%1&quot;. Enter an existing folder.</source>
        <translation>No existe la carpeta «%1». Indique una carpeta existente.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>&amp;Open starts in:</source>
        <translation>&amp;Abrir empieza en:</translation>
    </message>
</context>
<context>
    <name>kes::gallery::FrameRateOptionPage</name>
    <message>
        <source>Frame rates</source>
        <translation>Frecuencias de imagen</translation>
    </message>
    <message>
        <source>How often the live pages redraw while they are shown.</source>
        <translation>Con qué frecuencia se redibujan las páginas en vivo mientras se muestran.</translation>
    </message>
    <message>
        <source> per second</source>
        <translation> por segundo</translation>
    </message>
</context>
<context>
    <name>kes::gallery::ImageSaving</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>Todavía no hay ninguna imagen que guardar.</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>Imagen PNG (*.png)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>Imagen JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>TIFF image (*.tif *.tiff)</source>
        <translation>Imagen TIFF (*.tif *.tiff)</translation>
    </message>
    <message>
        <source>BMP image (*.bmp)</source>
        <translation>Imagen BMP (*.bmp)</translation>
    </message>
    <message>
        <source>Save as image</source>
        <translation>Guardar como imagen</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>No se pudo guardar %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
</context>
<context>
    <name>kes::gallery::InputWidgetsPage</name>
    <message>
        <source>Input widgets</source>
        <translation>Campos de entrada</translation>
    </message>
    <message>
        <source>Camera parameters</source>
        <translation>Parámetros de la cámara</translation>
    </message>
    <message>
        <source>Gain, black level and trigger mode turn light blue while a new value is typed: Return or leaving the field commits it, Escape brings back the committed one, and Return on an unchanged number sends nothing. The exposure takes any double in plain or exponent notation (2e-3) and its arrows step by decades; the sensor register is typed in hexadecimal.</source>
        <translation>La ganancia, el nivel de negro y el modo de disparo se vuelven azul claro mientras se escribe un valor nuevo: Intro o salir del campo lo confirma, Escape recupera el valor confirmado, e Intro sobre un número sin cambios no envía nada. La exposición admite cualquier número en notación normal o exponencial (2e-3) y sus flechas avanzan por décadas; el registro del sensor se escribe en hexadecimal.</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Cámara 1</translation>
    </message>
    <message>
        <source>Exposure [s]:</source>
        <translation>Exposición [s]:</translation>
    </message>
    <message>
        <source>Gain:</source>
        <translation>Ganancia:</translation>
    </message>
    <message>
        <source>Black level:</source>
        <translation>Nivel de negro:</translation>
    </message>
    <message>
        <source>Trigger mode:</source>
        <translation>Modo de disparo:</translation>
    </message>
    <message>
        <source>Register address</source>
        <translation>Dirección del registro</translation>
    </message>
    <message>
        <source>Register value</source>
        <translation>Valor del registro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Frame rate [fps]</source>
        <translation>Frecuencia de imagen [fps]</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Formato de píxel</translation>
    </message>
    <message>
        <source>Colour while editing</source>
        <translation>Color durante la edición</translation>
    </message>
    <message>
        <source>Highlight the gain</source>
        <translation>Resaltar la ganancia</translation>
    </message>
    <message>
        <source>Signals received</source>
        <translation>Señales recibidas</translation>
    </message>
    <message>
        <source>Gain, black level and trigger mode share one slot per signal signature; the user data names the parameter.</source>
        <translation>La ganancia, el nivel de negro y el modo de disparo comparten un slot por firma de señal; los datos de usuario nombran el parámetro.</translation>
    </message>
    <message>
        <source>black level</source>
        <translation>nivel de negro</translation>
    </message>
    <message>
        <source>gain</source>
        <translation>ganancia</translation>
    </message>
    <message>
        <source>trigger mode</source>
        <translation>modo de disparo</translation>
    </message>
    <message>
        <source>exposure</source>
        <translation>exposición</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LanguageOptionPage</name>
    <message>
        <source>Start language</source>
        <translation>Idioma de inicio</translation>
    </message>
    <message>
        <source>&amp;Language at start:</source>
        <translation>&amp;Idioma al iniciar:</translation>
    </message>
    <message>
        <source>Takes effect when the gallery starts next. The Languages menu switches at once, and the gallery starts in the language chosen last.</source>
        <translation>Se aplica la próxima vez que se inicie la galería. El menú de idiomas cambia al instante, y la galería se inicia en el último idioma elegido.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LaserPage</name>
    <message>
        <source>Laser scanner</source>
        <translation>Escáner láser</translation>
    </message>
    <message>
        <source>A laser scanner in a room</source>
        <translation>Un escáner láser en una sala</translation>
    </message>
    <message>
        <source>A simulated scanner sweeps 270° in half-degree steps 25 times a second, forward pointing up. A person walks about; reflector strips on the walls answer with a strong echo (yellow), beams through the open door find nothing, and now and then a beam is lost. Click to zoom in (left) or out (right) where you click, or use the wheel; the middle button fits the view. The red sector marks an analysis window.</source>
        <translation>Un escáner simulado barre 270° en pasos de medio grado 25 veces por segundo, con el frente hacia arriba. Una persona camina por la sala; las tiras reflectantes de las paredes devuelven un eco fuerte (amarillo), los haces que pasan por la puerta abierta no encuentran nada y de vez en cuando se pierde un haz. Haga clic para ampliar (izquierdo) o reducir (derecho) donde hace clic, o use la rueda; el botón central ajusta la vista. El sector rojo marca una ventana de análisis.</translation>
    </message>
    <message>
        <source>Analysis sector</source>
        <translation>Sector de análisis</translation>
    </message>
    <message>
        <source>&amp;Direction:</source>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>&amp;Opening:</source>
        <translation>&amp;Apertura:</translation>
    </message>
    <message>
        <source>Di&amp;stance:</source>
        <translation>Di&amp;stancia:</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;justar</translation>
    </message>
    <message>
        <source>Save as &amp;image…</source>
        <translation>Guardar como &amp;imagen…</translation>
    </message>
    <message>
        <source>Echoes in the sector: %1</source>
        <translation>Ecos en el sector: %1</translation>
    </message>
    <message>
        <source>%1 beams per scan, %2 scans a second; %3 beams without a range in the last scan</source>
        <translation>%1 haces por barrido, %2 barridos por segundo; %3 haces sin distancia en el último barrido</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LogPage</name>
    <message>
        <source>&amp;Log window</source>
        <translation>Ventana de &amp;registro</translation>
    </message>
    <message>
        <source>The log hub</source>
        <translation>El concentrador de registro</translation>
    </message>
    <message>
        <source>Messages from every part of an application gather in one process-wide log and show in the log window docked below (View menu). Any thread may post; the GUI thread writes whatever has arrived in one go, so that a flood of messages never stalls it. The newest 100 lines are kept.</source>
        <translation>Los mensajes de todas las partes de una aplicación se reúnen en un único registro del proceso y se muestran en la ventana de registro acoplada abajo (menú Ver). Cualquier hilo puede enviar mensajes; el hilo de la interfaz escribe de una vez todo lo que ha llegado, de modo que una avalancha de mensajes nunca lo bloquea. Se conservan las 100 líneas más recientes.</translation>
    </message>
    <message>
        <source>From the GUI thread</source>
        <translation>Desde el hilo de la interfaz</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Línea vacía</translation>
    </message>
    <message>
        <source>Log the same message again: instead of a new line, the last one gets a dot for every repeat.</source>
        <translation>Registre el mismo mensaje otra vez: en lugar de una línea nueva, la última recibe un punto por cada repetición.</translation>
    </message>
    <message>
        <source>From worker threads</source>
        <translation>Desde hilos de trabajo</translation>
    </message>
    <message>
        <source>Threads:</source>
        <translation>Hilos:</translation>
    </message>
    <message>
        <source>Messages per second and thread:</source>
        <translation>Mensajes por segundo y por hilo:</translation>
    </message>
    <message>
        <source>Redirected stream and core library</source>
        <translation>Flujo redirigido y biblioteca base</translation>
    </message>
    <message>
        <source>Write to std::cout</source>
        <translation>Escribir en std::cout</translation>
    </message>
    <message>
        <source>Log through the core library</source>
        <translation>Registrar mediante la biblioteca base</translation>
    </message>
    <message>
        <source>std::cout is taken over while the button writes three lines and an unfinished one, which is posted when the stream gets its buffer back; its bytes are read as Latin-1. The core library&apos;s log is called from a worker thread, in UTF-8.</source>
        <translation>std::cout queda tomado mientras el botón escribe tres líneas y una inacabada, que se envía cuando el flujo recupera su búfer; sus bytes se leen como Latin-1. El registro de la biblioteca base se llama desde un hilo de trabajo, en UTF-8.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>%1 messages posted</source>
        <translation>%1 mensajes enviados</translation>
    </message>
    <message>
        <source>Log</source>
        <comment>page list entry</comment>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Log</source>
        <comment>button that writes the message</comment>
        <translation>Registrar</translation>
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
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Configuración…</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>Abrir un archivo</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 ya no existe</translation>
    </message>
    <message>
        <source>Opened %1 (%2 bytes)</source>
        <translation>%1 abierto (%2 bytes)</translation>
    </message>
</context>
<context>
    <name>kes::gallery::OptionsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Live pages</source>
        <translation>Páginas en vivo</translation>
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
    <name>kes::gallery::SmallWidgetsPage</name>
    <message>
        <source>Small widgets</source>
        <translation>Widgets pequeños</translation>
    </message>
    <message>
        <source>Messages, progress and helpers</source>
        <translation>Mensajes, progreso y ayudas</translation>
    </message>
    <message>
        <source>Balloons fade in next to the control they talk about and fade out after ten seconds or on a click; hovering keeps them. The calibration shows a busy indicator whose Cancel stops it, and only a finished calibration ticks the read-only box.</source>
        <translation>Los globos aparecen junto al control al que se refieren y se desvanecen tras diez segundos o con un clic; mientras el puntero está encima, permanecen. La calibración muestra un indicador de actividad cuyo botón Cancelar la detiene, y solo una calibración terminada marca la casilla de solo lectura.</translation>
    </message>
    <message>
        <source>Balloon messages</source>
        <translation>Globos de mensaje</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Crítico</translation>
    </message>
    <message>
        <source>At the window&apos;s edge</source>
        <translation>En el borde de la ventana</translation>
    </message>
    <message>
        <source>Camera calibration</source>
        <translation>Calibración de la cámara</translation>
    </message>
    <message>
        <source>Start calibration</source>
        <translation>Iniciar la calibración</translation>
    </message>
    <message>
        <source>Camera 2 calibrated</source>
        <translation>Cámara 2 calibrada</translation>
    </message>
    <message>
        <source>Undistort the live image</source>
        <translation>Corregir la distorsión</translation>
    </message>
    <message>
        <source>The first box is read-only: neither clicks nor the Space key change it, only the calibration does. The second one is a plain check box.</source>
        <translation>La primera casilla es de solo lectura: ni los clics ni la barra espaciadora la cambian, solo la calibración. La segunda es una casilla normal.</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Calibration tutorial</source>
        <translation>Tutorial de calibración</translation>
    </message>
    <message>
        <source>&amp;Part number:</source>
        <translation>Número de &amp;pieza:</translation>
    </message>
    <message>
        <source>Help on part numbers</source>
        <translation>Ayuda sobre los números de pieza</translation>
    </message>
    <message>
        <source>Open the help</source>
        <translation>Abrir la ayuda</translation>
    </message>
    <message>
        <source>Spindle speed</source>
        <translation>Velocidad del husillo</translation>
    </message>
    <message>
        <source>The reading takes the largest font that fits: drag the splitter handle.</source>
        <translation>La lectura toma la fuente más grande que cabe: arrastre el divisor.</translation>
    </message>
    <message>
        <source>Drag the handle on the left</source>
        <translation>Arrastre el divisor a la izquierda</translation>
    </message>
    <message>
        <source>Calibration saved</source>
        <translation>Calibración guardada</translation>
    </message>
    <message>
        <source>Camera 2 uses the new intrinsics from the next frame on.</source>
        <translation>La cámara 2 usa los nuevos parámetros intrínsecos a partir de la siguiente imagen.</translation>
    </message>
    <message>
        <source>Exposure clipped</source>
        <translation>Exposición saturada</translation>
    </message>
    <message>
        <source>12 % of the pixels are saturated. Lower the gain or the exposure time.</source>
        <translation>El 12 % de los píxeles está saturado. Reduzca la ganancia o el tiempo de exposición.</translation>
    </message>
    <message>
        <source>Laser scanner offline</source>
        <translation>Escáner láser desconectado</translation>
    </message>
    <message>
        <source>No scan from 192.168.0.41 for 3 s. Check the cable and the scanner&apos;s power supply.</source>
        <translation>Ningún barrido de 192.168.0.41 desde hace 3 s. Compruebe el cable y la alimentación del escáner.</translation>
    </message>
    <message>
        <source>At the edge</source>
        <translation>En el borde</translation>
    </message>
    <message>
        <source>This balloon asked to open above and to the right of the button&apos;s corner. Where the screen ends, it opens on the other side, its tip still on the corner.</source>
        <translation>Este globo pidió abrirse encima y a la derecha de la esquina del botón. Donde termina la pantalla, se abre al otro lado, con la punta aún en la esquina.</translation>
    </message>
    <message>
        <source>Calibrating camera 2: image %1 of %2</source>
        <translation>Calibrando cámara 2: imagen %1/%2</translation>
    </message>
    <message>
        <source>Camera 2 has not been calibrated yet.</source>
        <translation>La cámara 2 aún no está calibrada.</translation>
    </message>
    <message>
        <source>Calibration finished: mean reprojection error 0.21 px over %1 images.</source>
        <translation>Calibración terminada: error medio de reproyección de 0,21 px en %1 imágenes.</translation>
    </message>
    <message>
        <source>Calibration cancelled after %1 of %2 images; the previous calibration stays in use.</source>
        <translation>Calibración cancelada tras %1 de %2 imágenes; la calibración anterior sigue en uso.</translation>
    </message>
    <message>
        <source>Unknown part number</source>
        <translation>Número de pieza desconocido</translation>
    </message>
    <message>
        <source>Part numbers read KES, four digits and a revision letter, e.g. KES-4711-B.</source>
        <translation>Los números de pieza constan de KES, cuatro cifras y una letra de revisión, p. ej. KES-4711-B.</translation>
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
    <message>
        <source>The page %1 needs a window of %2 × %3 pixels</source>
        <translation>La página %1 necesita una ventana de %2 × %3 píxeles</translation>
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
