<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>DO NOT TRANSLATE!</comment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <comment>DO NOT TRANSLATE!</comment>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>kes::gallery::AboutPage</name>
    <message>
        <source>Not a readable image</source>
        <translation>Image illisible</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Qt widgets and helpers for robotics and machine-vision tools</source>
        <translation>Widgets et utilitaires Qt pour robotique et vision industrielle</translation>
    </message>
    <message>
        <source>%1 is a Qt 5 widget library for desktop tools in robotics and machine vision: the views, editors and small helpers that such tools need again and again. Each page of this gallery shows one part of it.</source>
        <translation>%1 est une bibliothèque de widgets Qt 5 pour les outils de bureau en robotique et en vision industrielle&#xa0;: les vues, éditeurs et petits utilitaires dont ces outils ont sans cesse besoin. Chaque page de cette galerie en présente une partie.</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versions</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>%1 (the gallery was built against %2)</source>
        <translation>%1 (la galerie a été compilée avec la version %2)</translation>
    </message>
    <message>
        <source>Qt at run time:</source>
        <translation>Qt à l&apos;exécution&#xa0;:</translation>
    </message>
    <message>
        <source>Qt at compile time:</source>
        <translation>Qt à la compilation&#xa0;:</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>Compiled into the library&apos;s resources under %1</source>
        <translation>Compilées dans les ressources de la bibliothèque sous %1</translation>
    </message>
    <message>
        <source>No icons found under %1.</source>
        <translation>Aucune icône trouvée sous %1.</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>API reference:</source>
        <translation>Référence de l&apos;API&#xa0;:</translation>
    </message>
    <message>
        <source>Qt help file:</source>
        <translation>Fichier d&apos;aide Qt&#xa0;:</translation>
    </message>
    <message>
        <source>not generated</source>
        <translation>non disponible</translation>
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
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Colour ranges from a live camera</source>
        <translation>Plages de couleur d&apos;une caméra en direct</translation>
    </message>
    <message>
        <source>A synthetic camera delivers 30 frames a second: four coloured balls over a cloth, with sensor noise. Drag a rectangle over a ball to measure its hue, saturation and value ranges; the page then finds every blob within them and marks it. &quot;Show result&quot; shows the page&apos;s segmentation, &quot;Freeze image&quot; holds the picture, and the buttons copy the ranges to the clipboard and paste them back.</source>
        <translation>Une caméra synthétique fournit 30 images par seconde : quatre boules colorées sur un tissu, avec du bruit de capteur. Tracez un rectangle sur une boule pour mesurer ses plages de teinte, de saturation et de luminosité ; la page trouve alors chaque tache dans ces plages et la marque. &quot;Afficher le résultat&quot; montre la segmentation de la page, &quot;Figer l&apos;image&quot; arrête l&apos;image, et les boutons copient les plages dans le presse-papiers et les recollent.</translation>
    </message>
    <message>
        <source>Ranges: %1    Blobs found: %2</source>
        <translation>Plages : %1    Taches trouvées : %2</translation>
    </message>
    <message>
        <source>Save &amp;frame…</source>
        <translation>Enregistrer l&apos;&amp;image…</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CurveEdit</name>
    <message>
        <source>Move point %1</source>
        <translation>Déplacer le point %1</translation>
    </message>
    <message>
        <source>Insert point %1</source>
        <translation>Insérer le point %1</translation>
    </message>
    <message>
        <source>Remove point %1</source>
        <translation>Supprimer le point %1</translation>
    </message>
    <message>
        <source>Paste points</source>
        <translation>Coller les points</translation>
    </message>
</context>
<context>
    <name>kes::gallery::CurveEditorPage</name>
    <message>
        <source>Curve editor</source>
        <translation>Éditeur de courbe</translation>
    </message>
    <message>
        <source>Characteristic of a proportional valve</source>
        <translation>Caractéristique d’une valve proportionnelle</translation>
    </message>
    <message>
        <source>The opening of a valve over its control voltage, as a table of points joined by straight lines. Drag a point in the graph, or edit it in the table; a right click inserts and removes points and exchanges the whole list with the clipboard as lines of x and y.</source>
        <translation>L’ouverture d’une valve en fonction de sa tension de commande, sous forme d’un tableau de points reliés par des segments. Faites glisser un point dans le graphique ou modifiez-le dans le tableau ; un clic droit insère et supprime des points et échange toute la liste avec le presse-papiers sous forme de lignes x et y.</translation>
    </message>
    <message>
        <source>Admissible: %1 to %2 V, %3 to %4 %. A point cannot pass its neighbours in x; a refused coordinate keeps its value.</source>
        <translation>Admissible : %1 à %2 V, %3 à %4 %. Un point ne peut pas dépasser ses voisins en x ; une coordonnée refusée garde sa valeur.</translation>
    </message>
    <message>
        <source>U [V]</source>
        <translation>U [V]</translation>
    </message>
    <message>
        <source>Opening [%]</source>
        <translation>Ouverture [%]</translation>
    </message>
    <message>
        <source>Operating point:</source>
        <translation>Point de fonctionnement :</translation>
    </message>
    <message>
        <source>Point list received</source>
        <translation>Liste de points reçue</translation>
    </message>
    <message>
        <source>%1 V → %2 %</source>
        <translation>%1 V → %2 %</translation>
    </message>
    <message>
        <source>dataChanged() received: %1</source>
        <translation>dataChanged() reçus : %1</translation>
    </message>
</context>
<context>
    <name>kes::gallery::FilesOptionPage</name>
    <message>
        <source>There is no folder &quot;%1&quot;. Enter an existing folder.</source>
        <translation>Le dossier « %1 » n’existe pas. Indiquez un dossier existant.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>&amp;Open starts in:</source>
        <translation>&amp;Ouvrir commence dans :</translation>
    </message>
</context>
<context>
    <name>kes::gallery::FrameRateOptionPage</name>
    <message>
        <source>Frame rates</source>
        <translation>Fréquences d’images</translation>
    </message>
    <message>
        <source>How often the live pages redraw while they are shown.</source>
        <translation>La fréquence à laquelle les pages en direct se redessinent pendant qu’elles sont affichées.</translation>
    </message>
    <message>
        <source> per second</source>
        <translation> par seconde</translation>
    </message>
</context>
<context>
    <name>kes::gallery::ImageSaving</name>
    <message>
        <source>There is no picture to save yet.</source>
        <translation>Il n&apos;y a pas encore d&apos;image à enregistrer.</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>Image PNG (*.png)</translation>
    </message>
    <message>
        <source>JPEG image (*.jpg *.jpeg)</source>
        <translation>Image JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>TIFF image (*.tif *.tiff)</source>
        <translation>Image TIFF (*.tif *.tiff)</translation>
    </message>
    <message>
        <source>BMP image (*.bmp)</source>
        <translation>Image BMP (*.bmp)</translation>
    </message>
    <message>
        <source>Save as image</source>
        <translation>Enregistrer comme image</translation>
    </message>
    <message>
        <source>Could not save %1: %2</source>
        <translation>Impossible d&apos;enregistrer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
</context>
<context>
    <name>kes::gallery::InputWidgetsPage</name>
    <message>
        <source>Input widgets</source>
        <translation>Champs de saisie</translation>
    </message>
    <message>
        <source>Camera parameters</source>
        <translation>Paramètres de la caméra</translation>
    </message>
    <message>
        <source>Gain, black level and trigger mode turn light blue while a new value is typed: Return or leaving the field commits it, Escape brings back the committed one, and Return on an unchanged number sends nothing. The exposure takes any double in plain or exponent notation (2e-3) and its arrows step by decades; the sensor register is typed in hexadecimal.</source>
        <translation>Le gain, le niveau de noir et le mode de déclenchement passent au bleu clair pendant la saisie d&apos;une nouvelle valeur : Entrée ou la sortie du champ la valide, Échap rétablit la valeur validée, et Entrée sur un nombre inchangé n&apos;envoie rien. L&apos;exposition accepte tout nombre en notation simple ou exponentielle (2e-3) et ses flèches avancent par décades ; le registre du capteur se saisit en hexadécimal.</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>Caméra 1</translation>
    </message>
    <message>
        <source>Exposure [s]:</source>
        <translation>Exposition [s] :</translation>
    </message>
    <message>
        <source>Gain:</source>
        <translation>Gain :</translation>
    </message>
    <message>
        <source>Black level:</source>
        <translation>Niveau de noir :</translation>
    </message>
    <message>
        <source>Trigger mode:</source>
        <translation>Mode de déclenchement :</translation>
    </message>
    <message>
        <source>Register address</source>
        <translation>Adresse du registre</translation>
    </message>
    <message>
        <source>Register value</source>
        <translation>Valeur du registre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Frame rate [fps]</source>
        <translation>Cadence [i/s]</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>Binning</translation>
    </message>
    <message>
        <source>Pixel format</source>
        <translation>Format de pixel</translation>
    </message>
    <message>
        <source>Colour while editing</source>
        <translation>Couleur pendant la saisie</translation>
    </message>
    <message>
        <source>Highlight the gain</source>
        <translation>Mettre le gain en évidence</translation>
    </message>
    <message>
        <source>Signals received</source>
        <translation>Signaux reçus</translation>
    </message>
    <message>
        <source>Gain, black level and trigger mode share one slot per signal signature; the user data names the parameter.</source>
        <translation>Le gain, le niveau de noir et le mode de déclenchement partagent un slot par signature de signal ; les données utilisateur nomment le paramètre.</translation>
    </message>
    <message>
        <source>black level</source>
        <translation>niveau de noir</translation>
    </message>
    <message>
        <source>gain</source>
        <translation>gain</translation>
    </message>
    <message>
        <source>trigger mode</source>
        <translation>mode de déclenchement</translation>
    </message>
    <message>
        <source>exposure</source>
        <translation>exposition</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LanguageOptionPage</name>
    <message>
        <source>Start language</source>
        <translation>Langue de démarrage</translation>
    </message>
    <message>
        <source>&amp;Language at start:</source>
        <translation>&amp;Langue au démarrage :</translation>
    </message>
    <message>
        <source>Takes effect when the gallery starts next. The Languages menu switches at once, and the gallery starts in the language chosen last.</source>
        <translation>Prend effet au prochain démarrage de la galerie. Le menu des langues change immédiatement, et la galerie démarre dans la dernière langue choisie.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LaserPage</name>
    <message>
        <source>Laser scanner</source>
        <translation>Scanner laser</translation>
    </message>
    <message>
        <source>A laser scanner in a room</source>
        <translation>Un scanner laser dans une pièce</translation>
    </message>
    <message>
        <source>A simulated scanner sweeps 270° in half-degree steps 25 times a second, forward pointing up. A person walks about; reflector strips on the walls answer with a strong echo (yellow), beams through the open door find nothing, and now and then a beam is lost. Click to zoom in (left) or out (right) where you click, or use the wheel; the middle button fits the view. The red sector marks an analysis window.</source>
        <translation>Un scanner simulé balaie 270° par pas d&apos;un demi-degré 25 fois par seconde, l&apos;avant vers le haut. Une personne se déplace&#xa0;; des bandes réfléchissantes sur les murs renvoient un écho fort (en jaune), les faisceaux qui passent par la porte ouverte ne rencontrent rien, et de temps en temps un faisceau se perd. Cliquez pour agrandir (gauche) ou réduire (droite) à l&apos;endroit cliqué, ou utilisez la molette&#xa0;; le bouton du milieu ajuste la vue. Le secteur rouge marque une fenêtre d&apos;analyse.</translation>
    </message>
    <message>
        <source>Analysis sector</source>
        <translation>Secteur d&apos;analyse</translation>
    </message>
    <message>
        <source>&amp;Direction:</source>
        <translation>&amp;Direction&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Opening:</source>
        <translation>&amp;Ouverture&#xa0;:</translation>
    </message>
    <message>
        <source>Di&amp;stance:</source>
        <translation>Di&amp;stance&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;juster</translation>
    </message>
    <message>
        <source>Save as &amp;image…</source>
        <translation>Enregistrer comme &amp;image…</translation>
    </message>
    <message>
        <source>Echoes in the sector: %1</source>
        <translation>Échos dans le secteur&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 beams per scan, %2 scans a second; %3 beams without a range in the last scan</source>
        <translation>%1 faisceaux par balayage, %2 balayages par seconde&#xa0;; %3 faisceaux sans distance dans le dernier balayage</translation>
    </message>
</context>
<context>
    <name>kes::gallery::LogPage</name>
    <message>
        <source>&amp;Log window</source>
        <translation>Fenêtre du &amp;journal</translation>
    </message>
    <message>
        <source>The log hub</source>
        <translation>Le concentrateur de journal</translation>
    </message>
    <message>
        <source>Messages from every part of an application gather in one process-wide log and show in the log window docked below (View menu). Any thread may post; the GUI thread writes whatever has arrived in one go, so that a flood of messages never stalls it. The newest 100 lines are kept.</source>
        <translation>Les messages de toutes les parties d&apos;une application se rassemblent dans un journal unique du processus et s&apos;affichent dans la fenêtre du journal ancrée en bas (menu Affichage). Tout thread peut envoyer des messages&#xa0;; le thread de l&apos;interface écrit d&apos;un seul coup tout ce qui est arrivé, si bien qu&apos;un flot de messages ne le bloque jamais. Les 100 lignes les plus récentes sont conservées.</translation>
    </message>
    <message>
        <source>From the GUI thread</source>
        <translation>Depuis le thread de l&apos;interface</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>Ligne vide</translation>
    </message>
    <message>
        <source>Log the same message again: instead of a new line, the last one gets a dot for every repeat.</source>
        <translation>Journalisez le même message encore une fois&#xa0;: au lieu d&apos;une nouvelle ligne, la dernière reçoit un point par répétition.</translation>
    </message>
    <message>
        <source>From worker threads</source>
        <translation>Depuis des threads de travail</translation>
    </message>
    <message>
        <source>Threads:</source>
        <translation>Threads&#xa0;:</translation>
    </message>
    <message>
        <source>Messages per second and thread:</source>
        <translation>Messages par seconde et par thread&#xa0;:</translation>
    </message>
    <message>
        <source>Redirected stream and core library</source>
        <translation>Flux redirigé et bibliothèque de base</translation>
    </message>
    <message>
        <source>Write to std::cout</source>
        <translation>Écrire dans std::cout</translation>
    </message>
    <message>
        <source>Log through the core library</source>
        <translation>Journaliser par la bibliothèque de base</translation>
    </message>
    <message>
        <source>std::cout is taken over while the button writes three lines and an unfinished one, which is posted when the stream gets its buffer back; its bytes are read as Latin-1. The core library&apos;s log is called from a worker thread, in UTF-8.</source>
        <translation>std::cout est repris pendant que le bouton écrit trois lignes et une ligne inachevée, envoyée quand le flux retrouve son tampon&#xa0;; ses octets sont lus en Latin-1. Le journal de la bibliothèque de base est appelé depuis un thread de travail, en UTF-8.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>%1 messages posted</source>
        <translation>%1 messages envoyés</translation>
    </message>
    <message>
        <source>Log</source>
        <comment>page list entry</comment>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Log</source>
        <comment>button that writes the message</comment>
        <translation>Journaliser</translation>
    </message>
</context>
<context>
    <name>kes::gallery::MainWindow</name>
    <message>
        <source>libkes_qt gallery</source>
        <translation>Galerie libkes_qt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 n’existe plus</translation>
    </message>
    <message>
        <source>Opened %1 (%2 bytes)</source>
        <translation>%1 ouvert (%2 octets)</translation>
    </message>
</context>
<context>
    <name>kes::gallery::OptionsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Live pages</source>
        <translation>Pages en direct</translation>
    </message>
</context>
<context>
    <name>kes::gallery::ScopePage</name>
    <message>
        <source>Scope</source>
        <translation>Oscilloscope</translation>
    </message>
    <message>
        <source>Sixteen channels at 1 kHz</source>
        <translation>Seize canaux à 1 kHz</translation>
    </message>
    <message>
        <source>Synthetic sine, square, sawtooth and noisy signals arrive every 20 ms and the plot is redrawn 30 times a second. Channel 1 sweeps from a rising edge and channel 2 follows it; the others run free with the newest sample at the right edge. Choose a channel with the colour buttons, drag its zero line (left) or trigger level (right), and right-click for time base, amplification, trigger, colour and the clipboard exports.</source>
        <translation>Des signaux synthétiques sinusoïdaux, carrés, en dents de scie et bruités arrivent toutes les 20 ms et le tracé est redessiné 30 fois par seconde. Le canal 1 balaie à partir d’un front montant et le canal 2 le suit ; les autres défilent librement, l’échantillon le plus récent au bord droit. Choisissez un canal avec les boutons de couleur, faites glisser sa ligne zéro (à gauche) ou son niveau de déclenchement (à droite), et cliquez avec le bouton droit pour la base de temps, l’amplification, le déclenchement, la couleur et les exports vers le presse-papiers.</translation>
    </message>
    <message>
        <source>&amp;Channels:</source>
        <translation>&amp;Canaux :</translation>
    </message>
    <message>
        <source>Trigger &amp;level:</source>
        <translation>&amp;Niveau de déclenchement :</translation>
    </message>
    <message>
        <source>Last signal:</source>
        <translation>Dernier signal :</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucun pour l’instant</translation>
    </message>
</context>
<context>
    <name>kes::gallery::SmallWidgetsPage</name>
    <message>
        <source>Small widgets</source>
        <translation>Petits widgets</translation>
    </message>
    <message>
        <source>Messages, progress and helpers</source>
        <translation>Messages, progression et aides</translation>
    </message>
    <message>
        <source>Balloons fade in next to the control they talk about and fade out after ten seconds or on a click; hovering keeps them. The calibration shows a busy indicator whose Cancel stops it, and only a finished calibration ticks the read-only box.</source>
        <translation>Les bulles apparaissent en fondu à côté de l’élément qu’elles concernent et disparaissent après dix secondes ou sur un clic ; tant que la souris les survole, elles restent. L’étalonnage affiche un indicateur d’activité dont le bouton Annuler l’arrête, et seul un étalonnage terminé coche la case en lecture seule.</translation>
    </message>
    <message>
        <source>Balloon messages</source>
        <translation>Bulles de message</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>At the window&apos;s edge</source>
        <translation>Au bord de la fenêtre</translation>
    </message>
    <message>
        <source>Camera calibration</source>
        <translation>Étalonnage de la caméra</translation>
    </message>
    <message>
        <source>Start calibration</source>
        <translation>Lancer l’étalonnage</translation>
    </message>
    <message>
        <source>Camera 2 calibrated</source>
        <translation>Caméra 2 étalonnée</translation>
    </message>
    <message>
        <source>Undistort the live image</source>
        <translation>Corriger la distorsion</translation>
    </message>
    <message>
        <source>The first box is read-only: neither clicks nor the Space key change it, only the calibration does. The second one is a plain check box.</source>
        <translation>La première case est en lecture seule : ni les clics ni la barre d’espace ne la changent, seul l’étalonnage le fait. La seconde est une case à cocher ordinaire.</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Calibration tutorial</source>
        <translation>Tutoriel d’étalonnage</translation>
    </message>
    <message>
        <source>&amp;Part number:</source>
        <translation>Référence de &amp;pièce :</translation>
    </message>
    <message>
        <source>Help on part numbers</source>
        <translation>Aide sur les références de pièce</translation>
    </message>
    <message>
        <source>Open the help</source>
        <translation>Ouvrir l’aide</translation>
    </message>
    <message>
        <source>Spindle speed</source>
        <translation>Vitesse de la broche</translation>
    </message>
    <message>
        <source>The reading takes the largest font that fits: drag the splitter handle.</source>
        <translation>L’affichage prend la plus grande police qui tient : faites glisser la poignée du séparateur.</translation>
    </message>
    <message>
        <source>Drag the handle on the left</source>
        <translation>Faites glisser la poignée à gauche</translation>
    </message>
    <message>
        <source>Calibration saved</source>
        <translation>Étalonnage enregistré</translation>
    </message>
    <message>
        <source>Camera 2 uses the new intrinsics from the next frame on.</source>
        <translation>La caméra 2 utilise les nouveaux paramètres intrinsèques dès l’image suivante.</translation>
    </message>
    <message>
        <source>Exposure clipped</source>
        <translation>Exposition saturée</translation>
    </message>
    <message>
        <source>12 % of the pixels are saturated. Lower the gain or the exposure time.</source>
        <translation>12 % des pixels sont saturés. Baissez le gain ou le temps d’exposition.</translation>
    </message>
    <message>
        <source>Laser scanner offline</source>
        <translation>Scanner laser hors ligne</translation>
    </message>
    <message>
        <source>No scan from 192.168.0.41 for 3 s. Check the cable and the scanner&apos;s power supply.</source>
        <translation>Aucun balayage de 192.168.0.41 depuis 3 s. Vérifiez le câble et l’alimentation du scanner.</translation>
    </message>
    <message>
        <source>At the edge</source>
        <translation>Au bord</translation>
    </message>
    <message>
        <source>This balloon asked to open above and to the right of the button&apos;s corner. Where the screen ends, it opens on the other side, its tip still on the corner.</source>
        <translation>Cette bulle a demandé à s’ouvrir au-dessus et à droite du coin du bouton. Là où l’écran s’arrête, elle s’ouvre de l’autre côté, sa pointe toujours sur le coin.</translation>
    </message>
    <message>
        <source>Calibrating camera 2: image %1 of %2</source>
        <translation>Étalonnage caméra 2 : image %1/%2</translation>
    </message>
    <message>
        <source>Camera 2 has not been calibrated yet.</source>
        <translation>La caméra 2 n’est pas encore étalonnée.</translation>
    </message>
    <message>
        <source>Calibration finished: mean reprojection error 0.21 px over %1 images.</source>
        <translation>Étalonnage terminé : erreur de reprojection moyenne de 0,21 px sur %1 images.</translation>
    </message>
    <message>
        <source>Calibration cancelled after %1 of %2 images; the previous calibration stays in use.</source>
        <translation>Étalonnage annulé après %1 images sur %2 ; l’étalonnage précédent reste en vigueur.</translation>
    </message>
    <message>
        <source>Unknown part number</source>
        <translation>Référence de pièce inconnue</translation>
    </message>
    <message>
        <source>Part numbers read KES, four digits and a revision letter, e.g. KES-4711-B.</source>
        <translation>Une référence se compose de KES, de quatre chiffres et d’une lettre de révision, p. ex. KES-4711-B.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::TranslationPage</name>
    <message>
        <source>Translation</source>
        <translation>Traduction</translation>
    </message>
    <message>
        <source>Two kinds of translation</source>
        <translation>Deux types de traduction</translation>
    </message>
    <message>
        <source>The library&apos;s widgets translate their texts with Qt&apos;s tr() and the message files (.qm) compiled into the library. On a change of language the manager installs the new ones and every widget re-labels itself, like the title of the Languages menu.</source>
        <translation>Les widgets de la bibliothèque traduisent leurs textes avec tr() de Qt et les fichiers de messages (.qm) compilés dans la bibliothèque. Au changement de langue, le gestionnaire installe les nouveaux et chaque widget se met à jour, comme le titre du menu «&#xa0;Langues&#xa0;».</translation>
    </message>
    <message>
        <source>Application texts can come from XML translation files, loaded into a container. Arguments in square brackets are cut out to find a text and put back into its translation, in their order; a bracket after a backslash is a literal one.</source>
        <translation>Les textes de l&apos;application peuvent provenir de fichiers de traduction XML chargés dans un conteneur. Les arguments entre crochets sont retirés pour trouver un texte, puis réinsérés, dans l&apos;ordre, dans sa traduction&#xa0;; un crochet précédé d&apos;une barre oblique inverse est littéral.</translation>
    </message>
    <message>
        <source>Current language:</source>
        <translation>Langue actuelle&#xa0;:</translation>
    </message>
    <message>
        <source>Choose another one in the Languages menu.</source>
        <translation>Choisissez-en une autre dans le menu «&#xa0;Langues&#xa0;».</translation>
    </message>
    <message>
        <source>Application texts</source>
        <translation>Textes de l&apos;application</translation>
    </message>
    <message>
        <source>Cannot read the translation file %1.</source>
        <translation>Impossible de lire le fichier de traduction %1.</translation>
    </message>
    <message>
        <source>Cannot read the translation file %1: %2</source>
        <translation>Impossible de lire le fichier de traduction %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Some texts of %1 were skipped: %2</source>
        <translation>Certains textes de %1 ont été ignorés&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 texts from %2, translated into %3</source>
        <translation>%1 textes de %2, traduits en %3</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Texte source</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Double-click a source text to edit it. A text that the file does not hold stays as it is, in grey.</source>
        <translation>Double-cliquez pour modifier un texte source. Un texte absent du fichier reste tel quel, en gris.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Not in the translation file: shown as it is.</source>
        <translation>Absent du fichier de traduction&#xa0;: affiché tel quel.</translation>
    </message>
    <message>
        <source>No translation into &quot;%1&quot;: the key, with the arguments put back.</source>
        <translation>Aucune traduction en «&#xa0;%1&#xa0;»&#xa0;: la clé, avec les arguments réinsérés.</translation>
    </message>
</context>
<context>
    <name>kes::gallery::writeScreenshots</name>
    <message>
        <source>Cannot create the directory %1</source>
        <translation>Impossible de créer le répertoire %1</translation>
    </message>
    <message>
        <source>Cannot write the screenshot %1</source>
        <translation>Impossible d&apos;écrire la capture d&apos;écran %1</translation>
    </message>
    <message>
        <source>The page %1 needs a window of %2 × %3 pixels</source>
        <translation>La page %1 demande une fenêtre de %2 × %3 pixels</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Saves a picture of the window with each page as &lt;dir&gt;/&lt;page id&gt;.png, then exits.</source>
        <translation>Enregistre une image de la fenêtre pour chaque page sous &lt;dir&gt;/&lt;id de la page&gt;.png, puis quitte.</translation>
    </message>
    <message>
        <source>Shows the page &lt;id&gt; at start-up.</source>
        <translation>Affiche la page &lt;id&gt; au démarrage.</translation>
    </message>
    <message>
        <source>Starts in the language &lt;code&gt; (en, de, ...) instead of the stored one; screenshots are in English without it.</source>
        <translation>Démarre dans la langue &lt;code&gt; (en, de, ...) au lieu de celle enregistrée&#xa0;; sans cette option, les captures d&apos;écran sont en anglais.</translation>
    </message>
    <message>
        <source>Shows the widgets of libkes_qt, one page each.</source>
        <translation>Présente les widgets de libkes_qt, une page pour chaque partie.</translation>
    </message>
    <message>
        <source>Cannot create a temporary directory for the settings: %1</source>
        <translation>Impossible de créer un répertoire temporaire pour les paramètres&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cannot read the language list %1</source>
        <translation>Impossible de lire la liste des langues %1</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argument inattendu&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;; the languages are: %2</source>
        <translation>La langue «&#xa0;%1&#xa0;» n&apos;existe pas&#xa0;; les langues sont&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;; the pages are: %2</source>
        <translation>La page «&#xa0;%1&#xa0;» n&apos;existe pas&#xa0;; les pages sont&#xa0;: %2</translation>
    </message>
    <message>
        <source>--screenshot needs a directory</source>
        <translation>--screenshot nécessite un répertoire</translation>
    </message>
</context>
</TS>
