<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ requiere la versión %2$@ del sistema o una posterior. Busque una versión anterior de %1$@ en nuestro archivo histórico de software.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>No hay espacio suficiente: se necesitan %1$@ y hay %2$@ libres. Vacíe la papelera o elimine lo que ya no necesite.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>Se necesitan %@ de espacio.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>Se necesitan %1$@ de espacio; hay %2$@ libres.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>%2$@ está usando %1$@, que no se puede cerrar desde aquí. Pida antes a %2$@ que cierre el programa.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>%@ está en ejecución y se cerrará.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>La copia que hay ahora se moverá a la papelera.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>La versión que hay ahora, %@, se moverá a la papelera.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>La versión que hay ahora, %@, es más antigua y se moverá a la papelera.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>Ya está instalada la misma versión, %@, y se moverá a la papelera.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Ya está instalada una versión más reciente, %@. Instale solo si quiere volver a la anterior.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>Se le pedirá la contraseña de un administrador.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Producto: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>Origen: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Destino: %@</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>missing source path</source>
        <translation>Falta la ruta del producto</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Falta el nombre del programa</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Falta la firma del producto</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>La instalación se ha detenido.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>Falló la copia con permisos de administrador.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>No se pudo eliminar la copia existente.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>Falló la instalación.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>Se está instalando %@.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>La copia anterior de %1$@ está en la papelera.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Intente instalar %1$@ manualmente copiando el programa en la carpeta Aplicaciones.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Vuelve al archivo Léame.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Sale sin instalar.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>%@ se ha instalado correctamente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>%1$@ no puede estar en ejecución durante la instalación.<byte value="xd"/>Cierre %1$@ y pulse «Instalar» de nuevo.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Si quiere leer antes la documentación, pulse el botón «?».</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>No se pudo mostrar el archivo Léame. Puede abrirlo manualmente; está aquí:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>No se puede instalar %1$@ %2$@ en este equipo porque requiere Mac OS X %3$@ o posterior.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Para saber si hay una versión anterior de %@ disponible para su equipo, visite nuestro archivo histórico de software.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Visitar el archivo</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Copia todas las líneas.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Copiando %1$@: %2$d&#xa0;%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Valor no válido para %1$@: «%3$@». Valores posibles: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>No hay espacio suficiente para %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>Se puede instalar %@.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>No hay ningún producto en %@.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Solo un administrador puede instalar %1$@ en %2$@. Ejecute el instalador con sudo o elija otra ubicación con -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>%1$@ no puede estar en ejecución durante la instalación. Cierre %1$@ e inicie la instalación de nuevo.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Instalar %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Icono del producto</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Léame</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Éxito</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>%@ se instalará en su equipo, en esta ubicación:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Pulse «Instalar» para empezar. Si ya hay una copia anterior de %@, se moverá a la papelera.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>Qué va a ocurrir</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalación</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Detiene la copia.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Abrir la documentación</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Muestra lo que se registró durante la instalación.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Mostrar registro</translation>
    </message>
</context>
</TS>
