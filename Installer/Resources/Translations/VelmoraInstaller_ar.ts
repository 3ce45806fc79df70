<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>يتطلب برنامج %1$@ الإصدار %2$@ من النظام أو إصدارًا أحدث. ابحث عن إصدار أقدم من برنامج %1$@ في أرشيف البرامج لدينا.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>المساحة غير كافية: المطلوب %1$@ والمتاح %2$@. أفرغ المهملات أو احذف ما لم تعد تحتاج إليه.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>المساحة المطلوبة: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>المساحة المطلوبة: %1$@؛ المساحة المتاحة: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>برنامج %1$@ قيد الاستخدام لدى المستخدم %2$@ ولا يمكن إنهاؤه من هنا. اطلب أولًا من المستخدم %2$@ إنهاءه.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>برنامج %@ قيد التشغيل وسيتم إنهاؤه.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>ستُنقل النسخة الموجودة حاليًا إلى المهملات.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>سيُنقل الإصدار الموجود حاليًا (%@) إلى المهملات.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>سيُنقل الإصدار الأقدم الموجود حاليًا (%@) إلى المهملات.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>الإصدار نفسه (%@) موجود بالفعل وسيُنقل إلى المهملات.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>يوجد بالفعل إصدار أحدث (%@). لا تثبّت إلا إذا أردت العودة إلى الإصدار الأقدم.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>ستُطلب منك كلمة مرور مدير النظام.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>المنتج: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>من: &#x2066;%@&#x2069;</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>إلى: &#x2066;%@&#x2069;</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>مسار المنتج مفقود</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>اسم البرنامج مفقود</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>توقيع المنتج مفقود</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>تم إيقاف التثبيت.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>فشل النسخ بصلاحيات مدير النظام.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>تعذّر حذف النسخة الموجودة.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>فشل التثبيت.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>جارٍ تثبيت %@.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>النسخة السابقة من برنامج %1$@ موجودة في المهملات.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>جرّب تثبيت برنامج %1$@ يدويًا بنسخه إلى مجلد التطبيقات.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>يعود إلى ملف «اقرأني».</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>يُنهي البرنامج دون تثبيت.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>تم تثبيت %@ بنجاح.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>يجب ألّا يكون برنامج %1$@ قيد التشغيل أثناء التثبيت.<byte value="xd"/>أنهِ برنامج %1$@ ثم انقر «تثبيت» مرة أخرى.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>إذا أردت قراءة التوثيق أولًا فانقر الزر «?».</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>تعذّر عرض ملف «اقرأني». يمكنك فتحه بنفسك؛ وهو موجود هنا:
&#x2066;%@&#x2069;</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>لا يمكن تثبيت %1$@ %2$@ على هذا الحاسوب لأنه يتطلب نظام Mac OS X %3$@ أو إصدارًا أحدث.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>لمعرفة ما إذا كان يتوفر لحاسوبك إصدار أقدم من برنامج %@، تفضّل بزيارة أرشيف البرامج لدينا.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>زيارة الأرشيف</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>ينسخ كل الأسطر.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>جارٍ نسخ %1$@: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>القيمة «%3$@» غير صالحة للخيار &#x2066;%1$@&#x2069;. القيم الممكنة: &#x2066;%2$@&#x2069;.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>لا توجد مساحة كافية لبرنامج %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>يمكن تثبيت %@.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>لا يوجد منتج في &#x2066;%@&#x2069;.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>لا يُسمح إلا لمدير النظام بتثبيت %1$@ في &#x2066;%2$@&#x2069;. شغّل برنامج التثبيت باستخدام sudo أو اختر مكانًا آخر باستخدام &#x2066;-destinationPath&#x2069;.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>يجب ألّا يكون برنامج %1$@ قيد التشغيل أثناء التثبيت. أنهِ برنامج %1$@ ثم ابدأ التثبيت من جديد.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>تثبيت %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>أيقونة المنتج</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>اقرأني</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>نجاح</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>سيُثبَّت برنامج %@ على حاسوبك في هذا المكان:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>الوجهة</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>انقر «تثبيت» للبدء. إذا كانت هناك نسخة سابقة من برنامج %@ فستُنقل إلى المهملات.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>ما سيحدث</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>التثبيت</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>يوقف النسخ.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>فتح التوثيق</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>يعرض ما سُجّل أثناء التثبيت.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>عرض السجل</translation>
    </message>
</context>
</TS>
