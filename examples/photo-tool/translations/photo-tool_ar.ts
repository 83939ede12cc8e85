<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="ar">
<context>
    <name>InfoPlist</name>
    <message>
        <source>CFBundleName</source>
        <translation>أداة الصور</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;فتح…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;تكبير</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>الحجم ال&amp;حقيقي</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;مساعدة</translation>
    </message>
    <message>
        <source>#app_name &amp;Help</source>
        <translation>&amp;مساعدة #app_name</translation>
    </message>
    <message>
        <source>&amp;About #app_name</source>
        <translation>&amp;حول #app_name</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>تعذّر فتح %1: %2</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</source>
        <translation>صور (*.png *.jpg *.jpeg *.gif *.bmp *.svg)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>File &gt; Open… shows a picture; View makes it larger or smaller.</source>
        <translation>«ملف &gt; فتح…» يعرض صورة، و«عرض» يكبّرها أو يصغّرها.</translation>
    </message>
    <message>
        <source>%1, build %2
An example host of Wrenvale, by Brenmoor.</source>
        <translation>%1، الإصدار الداخلي %2
تطبيق مثال على Wrenvale من Brenmoor.</translation>
    </message>
</context>
<context>
    <name>RatingMenu</name>
    <message>
        <source>&amp;Ratings</source>
        <translation>&amp;التقييمات</translation>
    </message>
    <message>
        <source>Ask on the Third &amp;Export</source>
        <translation>السؤال عند ال&amp;تصدير الثالث</translation>
    </message>
    <message>
        <source>Ask Over &amp;This Window</source>
        <translation>السؤال فوق &amp;هذه النافذة</translation>
    </message>
    <message>
        <source>&amp;Ask for a Rating</source>
        <translation>&amp;طلب تقييم</translation>
    </message>
    <message>
        <source>Ask With an A&amp;lert</source>
        <translation>السؤال ب&amp;تنبيه</translation>
    </message>
    <message>
        <source>&amp;Rate %1</source>
        <translation>&amp;قيّم %1</translation>
    </message>
    <message>
        <source>%1: asked</source>
        <translation>%1: تم السؤال</translation>
    </message>
    <message>
        <source>%1: not asked</source>
        <translation>%1: لم يتم السؤال</translation>
    </message>
    <message>
        <source>completion handler called: %1</source>
        <translation>استُدعي معالج الإكمال: %1</translation>
    </message>
</context>
<context>
    <name>WelcomeStatus</name>
    <message>
        <source>%1, build %2  ·  Welcome window: due</source>
        <translation>%1، الإصدار الداخلي %2  ·  نافذة الترحيب: مستحقة</translation>
    </message>
    <message>
        <source>%1, build %2  ·  Welcome window: not due</source>
        <translation>%1، الإصدار الداخلي %2  ·  نافذة الترحيب: غير مستحقة</translation>
    </message>
</context>
</TS>
