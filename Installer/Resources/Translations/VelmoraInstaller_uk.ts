<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>Для програми %1$@ потрібна система версії %2$@ або новішої. Пошукайте старішу версію програми %1$@ у нашому архіві програм.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Недостатньо місця: потрібно %1$@, вільно %2$@. Спорожніть смітник або вилучіть те, що більше не потрібне.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Потрібно місця: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Потрібно місця: %1$@, вільно: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>Програму %1$@ використовує користувач %2$@, і завершити її звідси не можна. Спершу попросіть користувача %2$@ завершити її.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>Програма %@ працює, тож її буде завершено.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>Наявну копію буде переміщено до смітника.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>Наявну версію, %@, буде переміщено до смітника.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>Наявну старішу версію, %@, буде переміщено до смітника.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>Ту саму версію, %@, уже встановлено; її буде переміщено до смітника.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Уже встановлено новішу версію, %@. Встановлюйте, лише якщо хочете повернутися до старішої.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Потрібно буде ввести пароль адміністратора.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Продукт: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Звідки: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Куди: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Проблема</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Примітка</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Бракує шляху до продукту</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Бракує назви програми</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Бракує сигнатури продукту</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>Встановлення зупинено.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>Не вдалося виконати копіювання з правами адміністратора.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Не вдалося вилучити наявну копію.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Не вдалося виконати встановлення.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>Триває встановлення програми %@.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>Попередня копія програми %1$@ лежить у смітнику.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Спробуйте встановити програму %1$@ вручну, скопіювавши її до теки «Програми».</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Встановити</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продовжити</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Повертає до файлу «Прочитай мене».</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Завершує програму без встановлення.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>Програму %@ успішно встановлено.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>Під час встановлення програма %1$@ не повинна працювати.<byte value="xd"/>Завершіть програму %1$@ і знову натисніть «Встановити».</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Щоб спершу прочитати документацію, натисніть кнопку «?».</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Не вдалося показати файл «Прочитай мене». Ви можете відкрити його самостійно; він тут:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>Програму %1$@ %2$@ не можна встановити на цьому комп’ютері, оскільки для неї потрібна система Mac OS X %3$@ або новіша.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Щоб дізнатися, чи є для вашого комп’ютера старіша версія програми %@, відвідайте наш архів програм.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Перейти до архіву</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Копіює всі рядки.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Копіювання програми %1$@: %2$d&#xa0;%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Некоректне значення параметра %1$@: «%3$@». Можливі значення: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>Недостатньо місця для програми %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>Програму %@ можна встановити.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>За шляхом %@ немає продукту.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Лише адміністратор може встановити програму %1$@ до теки %2$@. Запустіть засіб встановлення через sudo або виберіть інше місце за допомогою -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>Під час встановлення програма %1$@ не повинна працювати. Завершіть програму %1$@ і знову розпочніть встановлення.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Встановлення програми %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Піктограма продукту</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Прочитай мене</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Успіх</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>Програму %@ буде встановлено на вашому комп’ютері в цьому місці:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Місце призначення</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Щоб почати, натисніть «Встановити». Якщо там уже є попередня копія програми %@, її буде переміщено до смітника.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Що станеться</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Встановлення</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Копіювання</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Зупиняє копіювання.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Зупинити</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Відкрити документацію</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Показує записи, зроблені під час встановлення.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Показати журнал</translation>
    </message>
</context>
</TS>
