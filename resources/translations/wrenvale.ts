<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
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
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you happy with %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your answer helps us to make it better.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not really</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Says that you do not like %1, and offers to contact us</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes, I like it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Says that you like %1, and offers to rate it</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Great, thank you!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short rating in the store helps other people to find %1. Would you take a minute?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the page of %1 in the store</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We are sorry to hear that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell us what you miss in %1. We read every message and will do our best to help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the support page of %1</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unhappy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Happy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Follows the application&apos;s name, as in &quot;Photo Tool Help&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate on Mac App Store</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subscribe to Newsletter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow on Twitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More Apps by Brenmoor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit @WRENVALE_VENDOR_SITE_NAME@</source>
        <extracomment>&quot;Visit &quot; and the name of the maker&apos;s web site</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Welcome to</source>
        <extracomment>The application&apos;s name follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newsletter Subscription</source>
        <extracomment>Title of the newsletter window</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a valid email address to subcribe.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thank you for downloading</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thank you for updating</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web pages cannot be shown here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page has ended unexpectedly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the connection to the Internet, and try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
