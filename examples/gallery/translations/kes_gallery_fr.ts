<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
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
