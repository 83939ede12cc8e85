<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="ja">
<context>
    <name>InfoPlist</name>
    <message>
        <source>CFBundleName</source>
        <extracomment>The application&apos;s own name. While this is left unfinished, the name in Info.plist is shown.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Wrenvale</name>
    <message>
        <source>Rate %1</source>
        <extracomment>Title of the rate window; %1 is the application&apos;s name</extracomment>
        <translation>%1 を評価</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Are you happy with %1?</source>
        <translation>%1 はお役に立っていますか？</translation>
    </message>
    <message>
        <source>Your answer helps us to make it better.</source>
        <translation>ご回答は今後の改善に役立てられます。</translation>
    </message>
    <message>
        <source>Not really</source>
        <translation>あまり満足していない</translation>
    </message>
    <message>
        <source>Says that you do not like %1, and offers to contact us</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>%1 に満足していないことを伝え、お問い合わせ画面に進みます</translation>
    </message>
    <message>
        <source>Yes, I like it</source>
        <translation>はい、気に入っています</translation>
    </message>
    <message>
        <source>Says that you like %1, and offers to rate it</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>%1 が気に入っていることを伝え、評価画面に進みます</translation>
    </message>
    <message>
        <source>Great, thank you!</source>
        <translation>ありがとうございます！</translation>
    </message>
    <message>
        <source>A short rating in the store helps other people to find %1. Would you take a minute?</source>
        <translation>ストアでの短い評価が、ほかの方が %1 を見つける助けになります。少しだけお時間をいただけますか？</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>ストアで評価</translation>
    </message>
    <message>
        <source>Opens the page of %1 in the store</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>ストアの %1 のページを開きます</translation>
    </message>
    <message>
        <source>We are sorry to hear that</source>
        <translation>申し訳ございません</translation>
    </message>
    <message>
        <source>Tell us what you miss in %1. We read every message and will do our best to help.</source>
        <translation>%1 に足りない点をお聞かせください。すべてのメッセージに目を通し、できる限り対応いたします。</translation>
    </message>
    <message>
        <source>Contact Support</source>
        <translation>サポートに問い合わせる</translation>
    </message>
    <message>
        <source>Opens the support page of %1</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>%1 のサポートページを開きます</translation>
    </message>
    <message>
        <source>Neutral face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>普通の表情</translation>
    </message>
    <message>
        <source>Unhappy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>不満そうな表情</translation>
    </message>
    <message>
        <source>Happy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>うれしそうな表情</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Follows the application&apos;s name, as in &quot;Photo Tool Help&quot;</extracomment>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Rate on Mac App Store</source>
        <translation>Mac App Store で評価</translation>
    </message>
    <message>
        <source>Subscribe to Newsletter</source>
        <translation>ニュースレターを購読</translation>
    </message>
    <message>
        <source>Follow on Twitter</source>
        <translation>Twitter でフォロー</translation>
    </message>
    <message>
        <source>More Apps by Brenmoor</source>
        <translation>Brenmoor のその他の App</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Visit @WRENVALE_VENDOR_SITE_NAME@</source>
        <extracomment>&quot;Visit &quot; and the name of the maker&apos;s web site</extracomment>
        <translation>@WRENVALE_VENDOR_SITE_NAME@ を開く</translation>
    </message>
    <message>
        <source>Welcome to</source>
        <extracomment>The application&apos;s name follows</extracomment>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Newsletter Subscription</source>
        <extracomment>Title of the newsletter window</extracomment>
        <translation>ニュースレターの購読</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>メールアドレスが正しくありません</translation>
    </message>
    <message>
        <source>Please enter a valid email address to subcribe.</source>
        <translation>購読するには、有効なメールアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Thank you for downloading</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>ダウンロードありがとうございます：</translation>
    </message>
    <message>
        <source>Thank you for updating</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>アップデートありがとうございます：</translation>
    </message>
    <message>
        <source>Loading</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Web pages cannot be shown here.</source>
        <translation>ここではウェブページを表示できません。</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>サーバが応答しません。</translation>
    </message>
    <message>
        <source>The page has ended unexpectedly.</source>
        <translation>ページが予期せず終了しました。</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>サーバに接続できません。</translation>
    </message>
    <message>
        <source>Check the connection to the Internet, and try again later.</source>
        <translation>インターネット接続を確認し、後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
