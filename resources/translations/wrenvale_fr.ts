<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="fr">
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
        <translation>Noter %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Are you happy with %1?</source>
        <translation>Êtes-vous satisfait de %1 ?</translation>
    </message>
    <message>
        <source>Your answer helps us to make it better.</source>
        <translation>Votre réponse nous aide à l’améliorer.</translation>
    </message>
    <message>
        <source>Not really</source>
        <translation>Pas vraiment</translation>
    </message>
    <message>
        <source>Says that you do not like %1, and offers to contact us</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Indique que %1 ne vous plaît pas et propose de nous contacter</translation>
    </message>
    <message>
        <source>Yes, I like it</source>
        <translation>Oui, il me plaît</translation>
    </message>
    <message>
        <source>Says that you like %1, and offers to rate it</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Indique que %1 vous plaît et propose de le noter</translation>
    </message>
    <message>
        <source>Great, thank you!</source>
        <translation>Super, merci !</translation>
    </message>
    <message>
        <source>A short rating in the store helps other people to find %1. Would you take a minute?</source>
        <translation>Une courte évaluation dans la boutique aide d’autres personnes à découvrir %1. Auriez-vous une minute ?</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>Noter dans la boutique</translation>
    </message>
    <message>
        <source>Opens the page of %1 in the store</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Ouvre la page de %1 dans la boutique</translation>
    </message>
    <message>
        <source>We are sorry to hear that</source>
        <translation>Nous en sommes désolés</translation>
    </message>
    <message>
        <source>Tell us what you miss in %1. We read every message and will do our best to help.</source>
        <translation>Dites-nous ce qui vous manque dans %1. Nous lisons chaque message et ferons de notre mieux pour vous aider.</translation>
    </message>
    <message>
        <source>Contact Support</source>
        <translation>Contacter l’assistance</translation>
    </message>
    <message>
        <source>Opens the support page of %1</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Ouvre la page d’assistance de %1</translation>
    </message>
    <message>
        <source>Neutral face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Visage neutre</translation>
    </message>
    <message>
        <source>Unhappy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Visage mécontent</translation>
    </message>
    <message>
        <source>Happy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Visage content</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Follows the application&apos;s name, as in &quot;Photo Tool Help&quot;</extracomment>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Rate on Mac App Store</source>
        <translation>Noter sur le Mac App Store</translation>
    </message>
    <message>
        <source>Subscribe to Newsletter</source>
        <translation>S’abonner à la lettre d’information</translation>
    </message>
    <message>
        <source>Follow on Twitter</source>
        <translation>Suivre sur Twitter</translation>
    </message>
    <message>
        <source>More Apps by Brenmoor</source>
        <translation>Autres apps de Brenmoor</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <source>Visit @WRENVALE_VENDOR_SITE_NAME@</source>
        <extracomment>&quot;Visit &quot; and the name of the maker&apos;s web site</extracomment>
        <translation>Visiter @WRENVALE_VENDOR_SITE_NAME@</translation>
    </message>
    <message>
        <source>Welcome to</source>
        <extracomment>The application&apos;s name follows</extracomment>
        <translation>Bienvenue dans</translation>
    </message>
    <message>
        <source>Newsletter Subscription</source>
        <extracomment>Title of the newsletter window</extracomment>
        <translation>Abonnement à la lettre d’information</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>Adresse e-mail non valide</translation>
    </message>
    <message>
        <source>Please enter a valid email address to subcribe.</source>
        <translation>Veuillez saisir une adresse e-mail valide pour vous abonner.</translation>
    </message>
    <message>
        <source>Thank you for downloading</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>Merci d’avoir téléchargé</translation>
    </message>
    <message>
        <source>Thank you for updating</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>Merci d’avoir mis à jour</translation>
    </message>
    <message>
        <source>Loading</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>Web pages cannot be shown here.</source>
        <translation>Impossible d’afficher des pages web ici.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>Le serveur ne répond pas.</translation>
    </message>
    <message>
        <source>The page has ended unexpectedly.</source>
        <translation>La page s’est fermée de façon inattendue.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>Impossible de joindre le serveur.</translation>
    </message>
    <message>
        <source>Check the connection to the Internet, and try again later.</source>
        <translation>Vérifiez la connexion à Internet, puis réessayez plus tard.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
