<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>היישום %1$@ דורש את גרסה %2$@ של המערכת או גרסה חדשה יותר. ניתן לחפש גרסה ישנה יותר של %1$@ בארכיון התוכנות שלנו.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>אין די מקום: דרושים %1$@, פנויים %2$@. יש לרוקן את האשפה או למחוק קבצים שאין בהם עוד צורך.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>דרוש מקום בנפח %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>דרוש מקום בנפח %1$@; פנויים %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>היישום %1$@ נמצא בשימוש של %2$@ ואי אפשר לסגור אותו מכאן. יש לבקש תחילה מ־%2$@ לסגור אותו.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>היישום %@ פועל וייסגר.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>העותק הקיים יועבר לאשפה.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>הגרסה הקיימת, %@, תועבר לאשפה.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>הגרסה הקיימת, %@, ישנה יותר ותועבר לאשפה.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>אותה הגרסה, %@, כבר קיימת ותועבר לאשפה.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>כבר קיימת גרסה חדשה יותר, %@. יש להתקין רק אם רצונך לחזור לגרסה הישנה.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>יהיה עליך להזין סיסמה של מנהל מערכת.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>מוצר: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>מקור: &#x2066;%@&#x2069;</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>יעד: &#x2066;%@&#x2069;</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>בעיה</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>הערה</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>חסר הנתיב של המוצר</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>חסר שם התוכנית</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>חסרה חתימת המוצר</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>ההתקנה נעצרה.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>ההעתקה בהרשאות מנהל מערכת נכשלה.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>לא ניתן היה למחוק את העותק הקיים.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>ההתקנה נכשלה.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>מתבצעת התקנה של %@.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>העותק הקודם של %1$@ נמצא באשפה.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>אפשר לנסות להתקין את %1$@ ידנית על ידי העתקה לתיקיית היישומים.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>התקנה</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>חוזר לקובץ &quot;קרא אותי&quot;.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>יוצא בלי להתקין.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>ההתקנה של %@ הושלמה בהצלחה.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>היישום %1$@ אינו יכול לפעול במהלך ההתקנה.<byte value="xd"/>יש לסגור את %1$@ ואז ללחוץ שוב על &quot;התקנה&quot;.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>כדי לקרוא תחילה את התיעוד, יש ללחוץ על הכפתור &quot;?&quot;.</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>לא ניתן היה להציג את הקובץ &quot;קרא אותי&quot;. אפשר לפתוח אותו ידנית; הוא נמצא כאן:
&#x2066;%@&#x2069;</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>לא ניתן להתקין את %1$@ %2$@ במחשב הזה כי נדרשת מערכת Mac OS X %3$@ או חדשה יותר.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>כדי לבדוק אם קיימת גרסה ישנה יותר של %@ עבור המחשב שלך, ניתן לבקר בארכיון התוכנות שלנו.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>מעבר לארכיון</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>יומן</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>מעתיק את כל השורות.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>מתבצעת העתקה של %1$@: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>הערך &quot;%3$@&quot; אינו תקף עבור &#x2066;%1$@&#x2069;. הערכים האפשריים: &#x2066;%2$@&#x2069;.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>אין די מקום עבור %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>ניתן להתקין את %@.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>אין מוצר בנתיב &#x2066;%@&#x2069;.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>רק מנהל מערכת רשאי להתקין את %1$@ בנתיב &#x2066;%2$@&#x2069;. יש להפעיל את תוכנית ההתקנה באמצעות sudo או לבחור מקום אחר באמצעות &#x2066;-destinationPath&#x2069;.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>היישום %1$@ אינו יכול לפעול במהלך ההתקנה. יש לסגור את %1$@ ואז להתחיל את ההתקנה שוב.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>התקנת %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>סמל המוצר</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>קרא אותי</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>הצלחה</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>היישום %@ יותקן במחשב שלך, במקום הזה:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>יעד</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>כדי להתחיל, יש ללחוץ על &quot;התקנה&quot;. אם כבר קיים שם עותק קודם של %@, הוא יועבר לאשפה.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>מה יקרה</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>התקנה</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>העתקה</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>עוצר את ההעתקה.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>פתיחת התיעוד</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>מציג את מה שנרשם במהלך ההתקנה.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>הצגת היומן</translation>
    </message>
</context>
</TS>
