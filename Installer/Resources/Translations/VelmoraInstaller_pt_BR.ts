<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<!-- SPDX-FileCopyrightText: 2026 The Velmora Installer authors -->
<!-- SPDX-License-Identifier: Apache-2.0 -->
<context>
    <name>InstallerWindow</name>
    <message>
        <source>%1$@ requires version %2$@ of the system, or a newer one. Look for an older version of %1$@ in our software archive.</source>
        <translation>%1$@ requer a versão %2$@ do sistema ou uma mais recente. Procure uma versão anterior de %1$@ em nosso acervo de software.</translation>
    </message>
    <message>
        <source>There is too little space: %1$@ are needed, and %2$@ are free. Empty the Trash, or delete what you no longer need.</source>
        <translation>Não há espaço suficiente: são necessários %1$@ e há %2$@ livres. Esvazie a lixeira ou exclua o que não é mais necessário.</translation>
    </message>
    <message>
        <source>%@ of space are needed.</source>
        <translation>São necessários %@ de espaço.</translation>
    </message>
    <message>
        <source>%1$@ of space are needed; %2$@ are free.</source>
        <translation>São necessários %1$@ de espaço; há %2$@ livres.</translation>
    </message>
    <message>
        <source>%1$@ is in use by %2$@ and cannot be quit from here. Ask %2$@ to quit it first.</source>
        <translation>O aplicativo %1$@ está sendo usado por %2$@ e não pode ser encerrado daqui. Peça antes a %2$@ que o encerre.</translation>
    </message>
    <message>
        <source>%@ is running and will be quit.</source>
        <translation>O aplicativo %@ está em execução e será encerrado.</translation>
    </message>
    <message>
        <source>The copy that is there now is moved to the Trash.</source>
        <translation>A cópia existente será movida para a lixeira.</translation>
    </message>
    <message>
        <source>Version %@, which is there now, is moved to the Trash.</source>
        <translation>A versão existente, %@, será movida para a lixeira.</translation>
    </message>
    <message>
        <source>The older version %@, which is there now, is moved to the Trash.</source>
        <translation>A versão existente, %@, é mais antiga e será movida para a lixeira.</translation>
    </message>
    <message>
        <source>The same version, %@, is there now and is moved to the Trash.</source>
        <translation>A mesma versão, %@, já está instalada e será movida para a lixeira.</translation>
    </message>
    <message>
        <source>A newer version, %@, is there now. Install only if you want the older one back.</source>
        <translation>Uma versão mais recente, %@, já está instalada. Instale somente se quiser voltar à anterior.</translation>
    </message>
    <message>
        <source>You will be asked for an administrator&apos;s password.</source>
        <translation>A senha de um administrador será solicitada.</translation>
    </message>
    <message>
        <source>Product: %@</source>
        <translation>Produto: %@</translation>
    </message>
    <message>
        <source>From: %@</source>
        <translation>De: %@</translation>
    </message>
    <message>
        <source>To: %@</source>
        <translation>Para: %@</translation>
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
        <translation>Falta o caminho do produto</translation>
    </message>
    <message>
        <source>missing program name</source>
        <translation>Falta o nome do programa</translation>
    </message>
    <message>
        <source>missing product signature</source>
        <translation>Falta a assinatura do produto</translation>
    </message>
    <message>
        <source>The installation was stopped.</source>
        <translation>A instalação foi interrompida.</translation>
    </message>
    <message>
        <source>Authorized copying failed.</source>
        <translation>A cópia com privilégios de administrador falhou.</translation>
    </message>
    <message>
        <source>Could not delete existing copy.</source>
        <translation>Não foi possível excluir a cópia existente.</translation>
    </message>
    <message>
        <source>Installation failed.</source>
        <translation>A instalação falhou.</translation>
    </message>
    <message>
        <source>%@ is being installed.</source>
        <translation>O aplicativo %@ está sendo instalado.</translation>
    </message>
    <message>
        <source>The earlier copy of %1$@ is in the Trash.</source>
        <translation>A cópia anterior de %1$@ está na lixeira.</translation>
    </message>
    <message>
        <source>Try installing %1$@ manually by copying it to the Applications folder.</source>
        <translation>Tente instalar %1$@ manualmente, copiando o aplicativo para a pasta Aplicativos.</translation>
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
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Returns to the read-me.</source>
        <translation>Volta ao arquivo Leia-me.</translation>
    </message>
    <message>
        <source>Quits without installing.</source>
        <translation>Sai sem instalar.</translation>
    </message>
    <message>
        <source>%@ was successfully installed.</source>
        <translation>O aplicativo %@ foi instalado com sucesso.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation.<byte value="xd"/>Quit %1$@, then click &quot;Install&quot; again.</source>
        <translation>O aplicativo %1$@ não pode estar em execução durante a instalação.<byte value="xd"/>Encerre %1$@ e clique novamente em “Instalar”.</translation>
    </message>
    <message>
        <source>If you wish to read the documentation first, click the &quot;?&quot; button.</source>
        <translation>Se quiser ler antes a documentação, clique no botão “?”.</translation>
    </message>
    <message>
        <source>The read-me could not be shown. You can open it yourself; it is here:
%@</source>
        <translation>Não foi possível mostrar o arquivo Leia-me. Você pode abri-lo manualmente; ele está aqui:
%@</translation>
    </message>
    <message>
        <source>%1$@ %2$@ cannot be installed on this computer because it requires Mac OS X %3$@ or newer.</source>
        <translation>Não é possível instalar %1$@ %2$@ neste computador porque é necessário o Mac OS X %3$@ ou mais recente.</translation>
    </message>
    <message>
        <source>To check if an older version of %@ is available for your computer, please visit our software archive.</source>
        <translation>Para saber se há uma versão anterior de %@ disponível para o seu computador, visite nosso acervo de software.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Visit Archive</source>
        <translation>Visitar o acervo</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Copies all lines.</source>
        <translation>Copia todas as linhas.</translation>
    </message>
    <message>
        <source>Copying %1$@: %2$d %%</source>
        <translation>Copiando %1$@: %2$d%%</translation>
    </message>
    <message>
        <source>The value of %1$@ must be one of %2$@, not &quot;%3$@&quot;.</source>
        <translation>Valor inválido para %1$@: “%3$@”. Valores possíveis: %2$@.</translation>
    </message>
    <message>
        <source>There is too little space for %@.</source>
        <translation>Não há espaço suficiente para %@.</translation>
    </message>
    <message>
        <source>%@ can be installed.</source>
        <translation>O aplicativo %@ pode ser instalado.</translation>
    </message>
    <message>
        <source>There is no product at %@.</source>
        <translation>Não há nenhum produto em %@.</translation>
    </message>
    <message>
        <source>Only an administrator may install %1$@ in %2$@. Run the installer with sudo, or choose another place with -destinationPath.</source>
        <translation>Somente um administrador pode instalar %1$@ em %2$@. Execute o instalador com sudo ou escolha outro local com -destinationPath.</translation>
    </message>
    <message>
        <source>%1$@ cannot be running during the installation. Quit %1$@, then start the installation again.</source>
        <translation>O aplicativo %1$@ não pode estar em execução durante a instalação. Encerre %1$@ e inicie a instalação novamente.</translation>
    </message>
    <message>
        <source>Install %@</source>
        <translation>Instalar %@</translation>
    </message>
    <message>
        <source>Product icon</source>
        <translation>Ícone do produto</translation>
    </message>
    <message>
        <source>Read Me</source>
        <translation>Leia-me</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Sucesso</translation>
    </message>
    <message>
        <source>This installs %@ on your computer, at this place:</source>
        <translation>O aplicativo %@ será instalado no seu computador, neste local:</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; to begin. If an earlier copy of %@ is there already, it is moved to the Trash.</source>
        <translation>Clique em “Instalar” para começar. Se já houver uma cópia anterior de %@, ela será movida para a lixeira.</translation>
    </message>
    <message>
        <source>What will happen</source>
        <translation>O que vai acontecer</translation>
    </message>
    <message>
        <source>Installing</source>
        <translation>Instalação</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Cópia</translation>
    </message>
    <message>
        <source>Stops the copying.</source>
        <translation>Interrompe a cópia.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interromper</translation>
    </message>
    <message>
        <source>Open the documentation</source>
        <translation>Abrir a documentação</translation>
    </message>
    <message>
        <source>Shows what was noted during the installation.</source>
        <translation>Mostra o que foi registrado durante a instalação.</translation>
    </message>
    <message>
        <source>Show Log</source>
        <translation>Mostrar registro</translation>
    </message>
</context>
</TS>
