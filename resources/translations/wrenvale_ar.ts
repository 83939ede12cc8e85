<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="ar">
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
        <translation>تقييم %1</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Are you happy with %1?</source>
        <translation>هل أنت راضٍ عن %1؟</translation>
    </message>
    <message>
        <source>Your answer helps us to make it better.</source>
        <translation>إجابتك تساعدنا على تحسينه.</translation>
    </message>
    <message>
        <source>Not really</source>
        <translation>ليس تمامًا</translation>
    </message>
    <message>
        <source>Says that you do not like %1, and offers to contact us</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>يفيد بأن %1 لا يعجبك ويعرض عليك التواصل معنا</translation>
    </message>
    <message>
        <source>Yes, I like it</source>
        <translation>نعم، يعجبني</translation>
    </message>
    <message>
        <source>Says that you like %1, and offers to rate it</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>يفيد بأن %1 يعجبك ويعرض عليك تقييمه</translation>
    </message>
    <message>
        <source>Great, thank you!</source>
        <translation>رائع، شكرًا لك!</translation>
    </message>
    <message>
        <source>A short rating in the store helps other people to find %1. Would you take a minute?</source>
        <translation>تقييم قصير في المتجر يساعد الآخرين على العثور على %1. هل تمنحنا دقيقة من وقتك؟</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>التقييم في المتجر</translation>
    </message>
    <message>
        <source>Opens the page of %1 in the store</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>يفتح صفحة %1 في المتجر</translation>
    </message>
    <message>
        <source>We are sorry to hear that</source>
        <translation>يؤسفنا سماع ذلك</translation>
    </message>
    <message>
        <source>Tell us what you miss in %1. We read every message and will do our best to help.</source>
        <translation>أخبرنا بما ينقصك في %1. نقرأ كل رسالة وسنبذل ما في وسعنا لمساعدتك.</translation>
    </message>
    <message>
        <source>Contact Support</source>
        <translation>الاتصال بالدعم</translation>
    </message>
    <message>
        <source>Opens the support page of %1</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>يفتح صفحة دعم %1</translation>
    </message>
    <message>
        <source>Neutral face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>وجه محايد</translation>
    </message>
    <message>
        <source>Unhappy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>وجه غير راضٍ</translation>
    </message>
    <message>
        <source>Happy face</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>وجه سعيد</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Follows the application&apos;s name, as in &quot;Photo Tool Help&quot;</extracomment>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Rate on Mac App Store</source>
        <translation>التقييم في Mac App Store</translation>
    </message>
    <message>
        <source>Subscribe to Newsletter</source>
        <translation>الاشتراك في النشرة الإخبارية</translation>
    </message>
    <message>
        <source>Follow on Twitter</source>
        <translation>المتابعة على Twitter</translation>
    </message>
    <message>
        <source>More Apps by Brenmoor</source>
        <translation>المزيد من تطبيقات Brenmoor</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>الدعم</translation>
    </message>
    <message>
        <source>Visit @WRENVALE_VENDOR_SITE_NAME@</source>
        <extracomment>&quot;Visit &quot; and the name of the maker&apos;s web site</extracomment>
        <translation>زيارة @WRENVALE_VENDOR_SITE_NAME@</translation>
    </message>
    <message>
        <source>Welcome to</source>
        <extracomment>The application&apos;s name follows</extracomment>
        <translation>مرحبًا بك في</translation>
    </message>
    <message>
        <source>Newsletter Subscription</source>
        <extracomment>Title of the newsletter window</extracomment>
        <translation>الاشتراك في النشرة الإخبارية</translation>
    </message>
    <message>
        <source>Invalid email address</source>
        <translation>عنوان البريد الإلكتروني غير صالح</translation>
    </message>
    <message>
        <source>Please enter a valid email address to subcribe.</source>
        <translation>يُرجى إدخال عنوان بريد إلكتروني صالح للاشتراك.</translation>
    </message>
    <message>
        <source>Thank you for downloading</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>شكرًا لتنزيل</translation>
    </message>
    <message>
        <source>Thank you for updating</source>
        <extracomment>The application&apos;s name and &quot;!&quot; follow</extracomment>
        <translation>شكرًا لتحديث</translation>
    </message>
    <message>
        <source>Loading</source>
        <extracomment>Read out by screen readers</extracomment>
        <translation>جارٍ التحميل</translation>
    </message>
    <message>
        <source>Web pages cannot be shown here.</source>
        <translation>لا يمكن عرض صفحات الويب هنا.</translation>
    </message>
    <message>
        <source>The server does not answer.</source>
        <translation>الخادم لا يستجيب.</translation>
    </message>
    <message>
        <source>The page has ended unexpectedly.</source>
        <translation>انتهت الصفحة بشكل غير متوقع.</translation>
    </message>
    <message>
        <source>The server cannot be reached.</source>
        <translation>تعذّر الوصول إلى الخادم.</translation>
    </message>
    <message>
        <source>Check the connection to the Internet, and try again later.</source>
        <translation>تحقّق من الاتصال بالإنترنت، ثم حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
</TS>
