<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="fr">
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>#app_name &amp;Help</source>
        <translation>Ai&amp;de #app_name</translation>
    </message>
    <message>
        <source>&amp;About #app_name</source>
        <translation>À &amp;propos de #app_name</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>Impossible d’ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</source>
        <translation>Images (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>File &gt; Open… shows a picture; View makes it larger or smaller.</source>
        <translation>« Fichier &gt; Ouvrir… » affiche une image, « Affichage » l’agrandit ou la réduit.</translation>
    </message>
    <message>
        <source>%1, build %2
An example host of Wrenvale, by Brenmoor.</source>
        <translation>%1, build %2
Une application d’exemple pour Wrenvale, par Brenmoor.</translation>
    </message>
</context>
<context>
    <name>RatingMenu</name>
    <message>
        <source>&amp;Ratings</source>
        <translation>&amp;Évaluations</translation>
    </message>
    <message>
        <source>Ask on the Third &amp;Export</source>
        <translation>Demander au troisième &amp;export</translation>
    </message>
    <message>
        <source>Ask Over &amp;This Window</source>
        <translation>Demander sur cette &amp;fenêtre</translation>
    </message>
    <message>
        <source>&amp;Ask for a Rating</source>
        <translation>&amp;Demander une évaluation</translation>
    </message>
    <message>
        <source>Ask With an A&amp;lert</source>
        <translation>Demander par une a&amp;lerte</translation>
    </message>
    <message>
        <source>&amp;Rate %1</source>
        <translation>&amp;Noter %1</translation>
    </message>
    <message>
        <source>%1: asked</source>
        <translation>%1 : demandé</translation>
    </message>
    <message>
        <source>%1: not asked</source>
        <translation>%1 : pas demandé</translation>
    </message>
    <message>
        <source>completion handler called: %1</source>
        <translation>gestionnaire de fin appelé : %1</translation>
    </message>
</context>
<context>
    <name>WelcomeStatus</name>
    <message>
        <source>%1, build %2  ·  Welcome window: due</source>
        <translation>%1, build %2  ·  Fenêtre de bienvenue : prévue</translation>
    </message>
    <message>
        <source>%1, build %2  ·  Welcome window: not due</source>
        <translation>%1, build %2  ·  Fenêtre de bienvenue : non prévue</translation>
    </message>
</context>
</TS>
