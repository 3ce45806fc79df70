<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>Для программы %1$@ требуется система версии %2$@ или новее. Поищите более старую версию программы %1$@ в нашем архиве программ.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Недостаточно места: нужно %1$@, свободно %2$@. Очистите корзину или удалите то, что больше не нужно.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Потребуется места: %@.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Потребуется места: %1$@, свободно: %2$@.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>Программу %1$@ использует пользователь %2$@, и завершить её отсюда нельзя. Сначала попросите пользователя %2$@ завершить её.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>Программа %@ запущена и будет завершена.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>Имеющаяся копия будет перемещена в корзину.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>Имеющаяся версия, %@, будет перемещена в корзину.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>Имеющаяся более старая версия, %@, будет перемещена в корзину.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>Та же версия, %@, уже установлена и будет перемещена в корзину.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Уже установлена более новая версия, %@. Устанавливайте, только если хотите вернуться к старой.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Потребуется ввести пароль администратора.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Продукт: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Откуда: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Куда: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Проблема</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Отсутствует путь к продукту</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Отсутствует имя программы</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Отсутствует сигнатура продукта</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>Установка остановлена.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>Не удалось выполнить копирование с правами администратора.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Не удалось удалить имеющуюся копию.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Не удалось выполнить установку.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>Выполняется установка программы %@.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>Прежняя копия программы %1$@ находится в корзине.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Попробуйте установить программу %1$@ вручную, скопировав её в папку «Программы».</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Возвращает к файлу «Прочти меня».</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Завершает программу без установки.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>Программа %@ успешно установлена.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>Во время установки программа %1$@ не должна быть запущена.<byte value="xd"/>Завершите программу %1$@ и снова нажмите «Установить».</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Чтобы сначала прочитать документацию, нажмите кнопку «?».</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Не удалось показать файл «Прочти меня». Вы можете открыть его самостоятельно; он находится здесь:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>Программу %1$@ %2$@ нельзя установить на этот компьютер, так как для неё требуется Mac OS X %3$@ или новее.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Чтобы узнать, есть ли для вашего компьютера более старая версия программы %@, посетите наш архив программ.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Перейти в архив</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Копирует все строки.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Копирование программы %1$@: %2$d&#xa0;%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Недопустимое значение параметра %1$@: «%3$@». Возможные значения: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>Недостаточно места для программы %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>Программу %@ можно установить.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>По пути %@ нет продукта.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Только администратор может установить программу %1$@ в папку %2$@. Запустите установщик через sudo или выберите другое место с помощью -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>Во время установки программа %1$@ не должна быть запущена. Завершите программу %1$@ и начните установку снова.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Установка программы %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Значок продукта</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Прочти меня</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>Программа %@ будет установлена на ваш компьютер в следующее место:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Место установки</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Чтобы начать, нажмите «Установить». Если там уже есть прежняя копия программы %@, она будет перемещена в корзину.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Что произойдёт</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Установка</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Копирование</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Останавливает копирование.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Открыть документацию</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Показывает записи, сделанные во время установки.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Показать журнал</translation>
    </message>
</context>
</TS>
