<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="de">
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>#app_name &amp;Help</source>
        <translation>#app_name-&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About #app_name</source>
        <translation>&amp;Über #app_name</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>File &gt; Open… shows a picture; View makes it larger or smaller.</source>
        <translation>„Datei &gt; Öffnen …“ zeigt ein Bild, „Ansicht“ vergrößert oder verkleinert es.</translation>
    </message>
    <message>
        <source>%1, build %2
An example host of Wrenvale, by Brenmoor.</source>
        <translation>%1, Build %2
Eine Beispielanwendung für Wrenvale, von Brenmoor.</translation>
    </message>
</context>
<context>
    <name>RatingMenu</name>
    <message>
        <source>&amp;Ratings</source>
        <translation>&amp;Bewertungen</translation>
    </message>
    <message>
        <source>Ask on the Third &amp;Export</source>
        <translation>Beim dritten &amp;Export fragen</translation>
    </message>
    <message>
        <source>Ask Over &amp;This Window</source>
        <translation>Über &amp;diesem Fenster fragen</translation>
    </message>
    <message>
        <source>&amp;Ask for a Rating</source>
        <translation>&amp;Um eine Bewertung bitten</translation>
    </message>
    <message>
        <source>Ask With an A&amp;lert</source>
        <translation>Mit einem &amp;Hinweis fragen</translation>
    </message>
    <message>
        <source>&amp;Rate %1</source>
        <translation>%1 &amp;bewerten</translation>
    </message>
    <message>
        <source>%1: asked</source>
        <translation>%1: gefragt</translation>
    </message>
    <message>
        <source>%1: not asked</source>
        <translation>%1: nicht gefragt</translation>
    </message>
    <message>
        <source>completion handler called: %1</source>
        <translation>Completion-Handler aufgerufen: %1</translation>
    </message>
</context>
<context>
    <name>WelcomeStatus</name>
    <message>
        <source>%1, build %2  ·  Welcome window: due</source>
        <translation>%1, Build %2  ·  Willkommensfenster: fällig</translation>
    </message>
    <message>
        <source>%1, build %2  ·  Welcome window: not due</source>
        <translation>%1, Build %2  ·  Willkommensfenster: nicht fällig</translation>
    </message>
</context>
</TS>
