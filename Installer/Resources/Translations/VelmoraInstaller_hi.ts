<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>प्रोग्राम %1$@ के लिए सिस्टम का संस्करण %2$@ या उससे नया संस्करण आवश्यक है। हमारे सॉफ़्टवेयर संग्रह में प्रोग्राम %1$@ का पुराना संस्करण खोजें।</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>पर्याप्त स्थान नहीं है: %1$@ चाहिए, जबकि %2$@ ख़ाली है। रद्दी ख़ाली करें या जिसकी अब ज़रूरत नहीं है, उसे हटाएँ।</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>आवश्यक स्थान: %@।</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>आवश्यक स्थान: %1$@; ख़ाली स्थान: %2$@।</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>उपयोगकर्ता %2$@ प्रोग्राम %1$@ का उपयोग कर रहे हैं और उसे यहाँ से बंद नहीं किया जा सकता। पहले उपयोगकर्ता %2$@ से उसे बंद करने को कहें।</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>प्रोग्राम %@ चल रहा है और उसे बंद कर दिया जाएगा।</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>मौजूदा प्रति रद्दी में डाल दी जाएगी।</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>मौजूदा संस्करण, %@, रद्दी में डाल दिया जाएगा।</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>मौजूदा पुराना संस्करण, %@, रद्दी में डाल दिया जाएगा।</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>यही संस्करण, %@, पहले से मौजूद है और रद्दी में डाल दिया जाएगा।</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>एक नया संस्करण, %@, पहले से मौजूद है। तभी इंस्टॉल करें जब आपको पुराना संस्करण वापस चाहिए।</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>आपसे किसी व्यवस्थापक का पासवर्ड माँगा जाएगा।</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>उत्पाद: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>स्रोत: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>गंतव्य: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>समस्या</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>सूचना</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>उत्पाद का पथ नहीं मिला</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>प्रोग्राम का नाम नहीं मिला</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>उत्पाद का सिग्नेचर नहीं मिला</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>इंस्टॉलेशन रोक दिया गया।</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>व्यवस्थापक के अधिकारों के साथ कॉपी करना विफल रहा।</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>मौजूदा प्रति हटाई नहीं जा सकी।</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>इंस्टॉलेशन विफल रहा।</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>प्रोग्राम %@ इंस्टॉल किया जा रहा है।</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>प्रोग्राम %1$@ की पिछली प्रति रद्दी में है।</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>प्रोग्राम %1$@ को ऐप्लिकेशन फ़ोल्डर में कॉपी करके उसे स्वयं इंस्टॉल करने का प्रयास करें।</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>इंस्टॉल करें</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>जारी रखें</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>वापस जाएँ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>“मुझे पढ़ें” फ़ाइल पर वापस ले जाता है।</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>इंस्टॉल किए बिना प्रोग्राम बंद करता है।</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>प्रोग्राम %@ सफलतापूर्वक इंस्टॉल हो गया।</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>इंस्टॉलेशन के दौरान प्रोग्राम %1$@ चालू नहीं होना चाहिए।<byte value="xd"/>प्रोग्राम %1$@ को बंद करें, फिर दोबारा “इंस्टॉल करें” पर क्लिक करें।</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>यदि आप पहले दस्तावेज़ पढ़ना चाहें, तो “?” बटन पर क्लिक करें।</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>“मुझे पढ़ें” फ़ाइल दिखाई नहीं जा सकी। आप उसे स्वयं खोल सकते हैं; वह यहाँ है:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>प्रोग्राम %1$@ %2$@ को इस कंप्यूटर पर इंस्टॉल नहीं किया जा सकता, क्योंकि इसके लिए Mac OS X %3$@ या उससे नया संस्करण आवश्यक है।</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>यह जानने के लिए कि आपके कंप्यूटर के लिए प्रोग्राम %@ का पुराना संस्करण उपलब्ध है या नहीं, हमारा सॉफ़्टवेयर संग्रह देखें।</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>संग्रह देखें</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>लॉग</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>सभी पंक्तियाँ कॉपी करता है।</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>प्रोग्राम %1$@ कॉपी हो रहा है: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>%1$@ का मान “%3$@” मान्य नहीं है। संभावित मान: %2$@।</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>प्रोग्राम %@ के लिए पर्याप्त स्थान नहीं है।</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>प्रोग्राम %@ इंस्टॉल किया जा सकता है।</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>%@ पर कोई उत्पाद नहीं है।</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>प्रोग्राम %1$@ को %2$@ में केवल व्यवस्थापक इंस्टॉल कर सकते हैं। इंस्टॉलर को sudo के साथ चलाएँ या -destinationPath से कोई दूसरी जगह चुनें।</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>इंस्टॉलेशन के दौरान प्रोग्राम %1$@ चालू नहीं होना चाहिए। प्रोग्राम %1$@ को बंद करें, फिर इंस्टॉलेशन दोबारा शुरू करें।</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>%@ इंस्टॉल करें</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>उत्पाद का आइकन</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>मुझे पढ़ें</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>सफलता</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>प्रोग्राम %@ आपके कंप्यूटर पर इस जगह इंस्टॉल किया जाएगा:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>गंतव्य</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>शुरू करने के लिए “इंस्टॉल करें” पर क्लिक करें। यदि वहाँ प्रोग्राम %@ की पिछली प्रति पहले से है, तो वह रद्दी में डाल दी जाएगी।</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>क्या होगा</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>इंस्टॉलेशन</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>कॉपी करना</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>कॉपी करना रोकता है।</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>दस्तावेज़ खोलें</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>इंस्टॉलेशन के दौरान दर्ज की गई बातें दिखाता है।</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>लॉग दिखाएँ</translation>
    </message>
</context>
</TS>
