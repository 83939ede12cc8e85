<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="ja">
<context>
    <name>InfoPlist</name>
    <message>
        <source>CFBundleName</source>
        <translation>フォトツール</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>実際のサイズ(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>#app_name &amp;Help</source>
        <translation>#app_name ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About #app_name</source>
        <translation>#app_name について(&amp;A)</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 を開けません: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</source>
        <translation>画像 (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>File &gt; Open… shows a picture; View makes it larger or smaller.</source>
        <translation>「ファイル」&gt;「開く」で画像を表示し、「表示」で拡大・縮小します。</translation>
    </message>
    <message>
        <source>%1, build %2
An example host of Wrenvale, by Brenmoor.</source>
        <translation>%1、ビルド %2
Brenmoor による Wrenvale のサンプルアプリケーション。</translation>
    </message>
</context>
<context>
    <name>RatingMenu</name>
    <message>
        <source>&amp;Ratings</source>
        <translation>評価(&amp;R)</translation>
    </message>
    <message>
        <source>Ask on the Third &amp;Export</source>
        <translation>3 回目の書き出しで尋ねる(&amp;E)</translation>
    </message>
    <message>
        <source>Ask Over &amp;This Window</source>
        <translation>このウインドウ上で尋ねる(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Ask for a Rating</source>
        <translation>評価を尋ねる(&amp;A)</translation>
    </message>
    <message>
        <source>Ask With an A&amp;lert</source>
        <translation>通知で尋ねる(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Rate %1</source>
        <translation>%1 を評価(&amp;R)</translation>
    </message>
    <message>
        <source>%1: asked</source>
        <translation>%1: 尋ねました</translation>
    </message>
    <message>
        <source>%1: not asked</source>
        <translation>%1: 尋ねませんでした</translation>
    </message>
    <message>
        <source>completion handler called: %1</source>
        <translation>完了ハンドラの呼び出し: %1</translation>
    </message>
</context>
<context>
    <name>WelcomeStatus</name>
    <message>
        <source>%1, build %2  ·  Welcome window: due</source>
        <translation>%1、ビルド %2  ·  ようこそ画面: 表示予定</translation>
    </message>
    <message>
        <source>%1, build %2  ·  Welcome window: not due</source>
        <translation>%1、ビルド %2  ·  ようこそ画面: 予定なし</translation>
    </message>
</context>
</TS>
