<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="de">
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
        <translation>%1 bewerten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Are you happy with %1?</source>
        <translation>Sind Sie mit %1 zufrieden?</translation>
    </message>
    <message>
        <source>Your answer helps us to make it better.</source>
        <translation>Ihre Antwort hilft uns, es noch besser zu machen.</translation>
    </message>
    <message>
        <source>Not really</source>
        <translation>Eher nicht</translation>
    </message>
    <message>
        <source>Says that you do not like %1, and offers to contact us</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Sagt, dass Ihnen %1 nicht gefällt, und bietet an, uns zu schreiben</translation>
    </message>
    <message>
        <source>Yes, I like it</source>
        <translation>Ja, gefällt mir</translation>
    </message>
    <message>
        <source>Says that you like %1, and offers to rate it</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Sagt, dass Ihnen %1 gefällt, und bietet an, es zu bewerten</translation>
    </message>
    <message>
        <source>Great, thank you!</source>
        <translation>Das freut uns, vielen Dank!</translation>
    </message>
    <message>
        <source>A short rating in the store helps other people to find %1. Would you take a minute?</source>
        <translation>Eine kurze Bewertung im Store hilft anderen, %1 zu finden. Haben Sie eine Minute Zeit dafür?</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>Im Store bewerten</translation>
    </message>
    <message>
        <source>Opens the page of %1 in the store</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Öffnet die Seite von %1 im Store</translation>
    </message>
    <message>
        <source>We are sorry to hear that</source>
        <translation>Das tut uns leid</translation>
    </message>
    <message>
        <source>Tell us what you miss in %1. We read every message and will do our best to help.</source>
        <translation>Schreiben Sie uns, was Ihnen in %1 fehlt. Wir lesen jede Nachricht und helfen, so gut wir können.</translation>
    </message>
    <message>
        <source>Contact Support</source>
        <translation>Support kontaktieren</translation>
    </message>
    <message>
        <source>Opens the support page of %1</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Öffnet die Support-Seite von %1</translation>
    </message>
    <message>
        <source>Neutral face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Neutrales Gesicht</translation>
    </message>
    <message>
        <source>Unhappy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Unzufriedenes Gesicht</translation>
    </message>
    <message>
        <source>Happy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Fröhliches Gesicht</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Follows the application&apos;s name, as in &quot;Photo Tool Help&quot;</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Rate on Mac App Store</source>
        <translation>Im Mac App Store bewerten</translation>
    </message>
    <message>
        <source>Subscribe to Newsletter</source>
        <translation>Newsletter abonnieren</translation>
    </message>
    <message>
        <source>Follow on Twitter</source>
        <translation>Auf Twitter folgen</translation>
    </message>
    <message>
        <source>More Apps by Brenmoor</source>
        <translation>Weitere Apps von Brenmoor</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Visit @WRENVALE_VENDOR_SITE_NAME@</source>
        <extracomment>&quot;Visit &quot; and the name of the maker&apos;s web site</extracomment>
        <translation>@WRENVALE_VENDOR_SITE_NAME@ besuchen</translation>
    </message>
    <message>
        <source>Welcome to</source>
        <extracomment>The application&apos;s name follows</extracomment>
        <translation>Willkommen bei</translation>
    </message>
    <message>
        <source>Newsletter Subscription</source>
        <extracomment>Title of the newsletter window</extracomment>
        <translation>Newsletter-Abonnement</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>Ungültige E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Please enter a valid email address to subcribe.</source>
        <translation>Bitte geben Sie eine gültige E-Mail-Adresse ein, um den Newsletter zu abonnieren.</translation>
    </message>
    <message>
        <source>Thank you for downloading</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>Danke für den Download von</translation>
    </message>
    <message>
        <source>Thank you for updating</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>Danke für das Update von</translation>
    </message>
    <message>
        <source>Loading</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Wird geladen</translation>
    </message>
    <message>
        <source>Web pages cannot be shown here.</source>
        <translation>Webseiten können hier nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Der Server antwortet nicht.</translation>
    </message>
    <message>
        <source>The page has ended unexpectedly.</source>
        <translation>Die Seite wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Der Server ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Check the connection to the Internet, and try again later.</source>
        <translation>Prüfen Sie die Internetverbindung und versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>
