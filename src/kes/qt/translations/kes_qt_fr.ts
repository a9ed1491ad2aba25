<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>kes::qt::FileHistory</name>
    <message>
        <source>Recent Files</source>
        <translation>Fichiers récents</translation>
    </message>
</context>
<context>
    <name>kes::qt::FileHistory2</name>
    <message>
        <source>&amp;Recent Projects</source>
        <translation>&amp;Projets récents</translation>
    </message>
</context>
<context>
    <name>kes::qt::colorrangefinder::Dialog</name>
    <message>
        <source>Show result</source>
        <translation>Afficher le résultat</translation>
    </message>
    <message>
        <source>Freeze image</source>
        <translation>Figer l&apos;image</translation>
    </message>
    <message>
        <source>Copy values to clipboard</source>
        <translation>Copier les valeurs dans le presse-papiers</translation>
    </message>
    <message>
        <source>Paste values from clipboard</source>
        <translation>Coller les valeurs depuis le presse-papiers</translation>
    </message>
</context>
<context>
    <name>kes::qt::colorrangefinder::SpinBoxGroup</name>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Luminosité</translation>
    </message>
</context>
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
    <name>kes::qt::exportdialogs::ImgExportDialog</name>
    <message>
        <source>Image export</source>
        <translation>Exportation d&apos;image</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualité&#xa0;:</translation>
    </message>
    <message>
        <source>Enable compression</source>
        <translation>Activer la compression</translation>
    </message>
    <message>
        <source>Check this if you want to customize the image&apos;s quality</source>
        <translation>Cochez cette case pour choisir vous-même la qualité de l&apos;image</translation>
    </message>
    <message>
        <source>Adjust quality (if supported by the chosen format)</source>
        <translation>Régler la qualité (si le format choisi le permet)</translation>
    </message>
    <message>
        <source>Enable lossless compression (if supported by the chosen format)</source>
        <translation>Activer la compression sans perte (si le format choisi le permet)</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::BalloonToolTip</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::Progress</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>kes::qt::gui::widgets::WebDialog</name>
    <message>
        <source>Web page</source>
        <translation>Page web</translation>
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
    <name>kes::qt::scope::ChannelMenu</name>
    <message>
        <source>All channels</source>
        <translation>Tous les canaux</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Amplification</source>
        <translation>Amplification</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Déclenchement</translation>
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
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Rising edge</source>
        <translation>Front montant</translation>
    </message>
    <message>
        <source>Falling edge</source>
        <translation>Front descendant</translation>
    </message>
    <message>
        <source>Set color</source>
        <translation>Choisir la couleur</translation>
    </message>
</context>
<context>
    <name>kes::qt::scope::View</name>
    <message>
        <source>Enable %1</source>
        <translation>Activer %1</translation>
    </message>
    <message>
        <source>Copy as Image</source>
        <translation>Copier comme image</translation>
    </message>
    <message>
        <source>Copy as Data</source>
        <translation>Copier comme données</translation>
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
        <translation>&amp;Langues</translation>
    </message>
</context>
</TS>
