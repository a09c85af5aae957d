<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>AdvancedOptionsDialog</name>
    <message>
        <source>Advanced Options</source>
        <translation>Opções avançadas</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;em&gt;Hover the mouse over any item for more information.&lt;/em&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;em&gt;Passe o mouse sobre um item para obter mais informações.&lt;/em&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Desativar alterações pelo botão</translation>
    </message>
    <message>
        <source>&lt;p&gt;Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING RANGE configurations.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Impede que o botão físico altere as configurações de INTERVALO DE AMOSTRAGEM e FAIXA DE MONITORAMENTO DE TEMPERATURA.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password for software configuration</source>
        <translation>Exigir senha para configurar pelo software</translation>
    </message>
    <message>
        <source>&lt;p&gt;Requires password to perform any configuration via software tool.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Exige a senha para qualquer configuração pelo software.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Do not require password to view reports</source>
        <translation>Não exigir senha para ver os relatórios</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, device will automatically appear as a USB thumb drive containing the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ao ser conectado à porta USB no estado DONE, o dispositivo aparece automaticamente como um pen drive USB com os relatórios.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password only to access report for the first time</source>
        <translation>Exigir senha somente no primeiro acesso ao relatório</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, the device will require the password only &lt;b&gt;once&lt;/b&gt; to generate the reports. The device must be unlocked using this tool. After unlocking, it will &lt;b&gt;always&lt;/b&gt; appear as a USB thumb drive with the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ao ser conectado à porta USB no estado DONE, o dispositivo exige a senha somente &lt;b&gt;uma vez&lt;/b&gt; para gerar os relatórios. O dispositivo deve ser desbloqueado com este software. Após o desbloqueio, ele aparece &lt;b&gt;sempre&lt;/b&gt; como um pen drive USB com os relatórios.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password always when accessing reports</source>
        <translation>Sempre exigir senha para acessar os relatórios</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Upon &lt;span style=&quot; font-weight:600;&quot;&gt;every&lt;/span&gt; USB connection in the DONE state, the device will require the password to display the reports. The device must be unlocked using this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is disconnected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A &lt;span style=&quot; font-weight:600;&quot;&gt;cada&lt;/span&gt; conexão USB no estado DONE, o dispositivo exige a senha para mostrar os relatórios. O dispositivo deve ser desbloqueado com este software. Após o desbloqueio, ele aparece como um pen drive USB com os relatórios até ser desconectado.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Start &amp;&amp; Stop Policies</source>
        <translation>Regras de início e parada</translation>
    </message>
    <message>
        <source>Allow START via physical button</source>
        <translation>Permitir START pelo botão físico</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the START of the device (entering RECORDING mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite o START do dispositivo (passagem ao modo RECORDING) pelo &lt;span style=&quot; font-weight:600;&quot;&gt;botão multifuncional &lt;/span&gt;(isto é, com dois &lt;span style=&quot; font-style:italic;&quot;&gt;cliques de 5 segundos&lt;/span&gt; ou com 12 cliques curtos).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow START via software tool</source>
        <translation>Permitir START pelo software</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows the logger to be placed in RECORDING mode via this software tool.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite colocar o registrador no modo RECORDING com este software.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow STOP via physical button</source>
        <translation>Permitir STOP pelo botão físico</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the STOP of the device (entering DONE mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite o STOP do dispositivo (passagem ao modo DONE) pelo &lt;span style=&quot; font-weight:600;&quot;&gt;botão multifuncional &lt;/span&gt;(isto é, com dois &lt;span style=&quot; font-style:italic;&quot;&gt;cliques de 5 segundos&lt;/span&gt; ou com 12 cliques curtos).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP device immediately when attached to USB port</source>
        <translation>STOP imediato ao conectar o dispositivo a uma porta USB</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows a device in the RECORDING state to immediately STOP into the DONE state when attached to an USB port. The &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; is &lt;span style=&quot; font-weight:600;&quot;&gt;not&lt;/span&gt; required.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite que um dispositivo no estado RECORDING execute STOP e passe imediatamente ao estado DONE ao ser conectado a uma porta USB. O &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; &lt;span style=&quot; font-weight:600;&quot;&gt;não&lt;/span&gt; é necessário.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>START automatically on: -</source>
        <translation>START automático em: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically START on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;O dispositivo executa START automaticamente na data definida. O fuso horário é o mesmo que está configurado no dispositivo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP automatically on: -</source>
        <translation>STOP automático em: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically STOP on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;O dispositivo executa STOP automaticamente na data definida. O fuso horário é o mesmo que está configurado no dispositivo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Multiuse device options</source>
        <translation>Opções de dispositivos Multiuse</translation>
    </message>
    <message>
        <source>Allow device RESET at any time</source>
        <translation>Permitir RESET a qualquer momento</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse logger can be RESET at &lt;span style=&quot; font-weight:600;&quot;&gt;any&lt;/span&gt; time.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;O RESET de um registrador Multiuse pode ser feito a &lt;span style=&quot; font-weight:600;&quot;&gt;qualquer&lt;/span&gt; momento.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after STOP</source>
        <translation>Permitir RESET somente após STOP</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot; font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;O RESET de um dispositivo Multiuse pode ser feito &lt;span style=&quot; font-weight:600;&quot;&gt;somente&lt;/span&gt; no estado DONE (isto é, após a parada das medições).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Changes will take full effect upon disconnecting the Brumalogger from the USB port.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;As alterações terão efeito completo quando o Brumalogger for retirado da porta USB.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after reports are generated</source>
        <translation>Permitir RESET somente após gerar os relatórios</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot;font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least once.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;O RESET de um dispositivo Multiuse pode ser feito &lt;span style=&quot;font-weight:600;&quot;&gt;somente&lt;/span&gt; no estado DONE (isto é, após a parada das medições) e depois de ver os relatórios pelo menos uma vez.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password too long</source>
        <translation>Senha longa demais</translation>
    </message>
    <message>
        <source>Password may not be larger than %1 characters.
Your input was truncated.</source>
        <translation>A senha não pode ter mais de %1 caracteres.
O texto digitado foi cortado.</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>&lt;p&gt;Once a device is password protected, it can only be unlocked with the &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Ensure that the customer receiving the logger can install and use this software before shipping a locked &lt;b&gt;Brumalogger USB&lt;/b&gt;.&lt;br&gt;Furthermore, note that it is &lt;b&gt;not possible&lt;/b&gt; to recover or restore the password of a locked device.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Um dispositivo protegido por senha só pode ser desbloqueado com o &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Certifique-se de que o cliente que receberá o registrador possa instalar e usar este software antes de enviar um &lt;b&gt;Brumalogger USB&lt;/b&gt; bloqueado.&lt;br&gt;Além disso, observe que &lt;b&gt;não é possível&lt;/b&gt; recuperar nem restaurar a senha de um dispositivo bloqueado.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>START automatically on: </source>
        <translation>START automático em: </translation>
    </message>
    <message>
        <source>STOP automatically on: </source>
        <translation>STOP automático em: </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select a START Date and Time</source>
        <translation>Selecione data e hora de START</translation>
    </message>
    <message>
        <source>Select a STOP Date and Time</source>
        <translation>Selecione data e hora de STOP</translation>
    </message>
    <message>
        <source>Empty password field</source>
        <translation>Campo de senha vazio</translation>
    </message>
    <message>
        <source>&lt;p&gt;Please specify a password or disable any options requering it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Informe uma senha ou desative as opções que a exigem.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START and STOP date</source>
        <translation>Datas de START e STOP inválidas</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the START date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A data/hora de STOP deve ser pelo menos %1 minutos posterior à data/hora de START. Verifique as configurações.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START date</source>
        <translation>Data de START inválida</translation>
    </message>
    <message>
        <source>&lt;p&gt;The START date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A data/hora de START deve ser pelo menos %1 minutos posterior à data/hora atual. Verifique as configurações.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid STOP date</source>
        <translation>Data de STOP inválida</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A data/hora de STOP deve ser pelo menos %1 minutos posterior à data/hora atual. Verifique as configurações.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No START enabled</source>
        <translation>Nenhum START ativado</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid START configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; START option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nenhuma configuração válida de START está ativada.&lt;br&gt;Ative pelo menos &lt;b&gt;uma&lt;/b&gt; opção de START.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No STOP enabled</source>
        <translation>Nenhum STOP ativado</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid STOP configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; STOP option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nenhuma configuração válida de STOP está ativada.&lt;br&gt;Ative pelo menos &lt;b&gt;uma&lt;/b&gt; opção de STOP.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current security configuration is &lt;b&gt;valid&lt;/b&gt;.&lt;br&gt; However, it only allows a RESET after the reports are generated, and &lt;em&gt;report generation&lt;/em&gt; is password protected.&lt;br&gt;Please note that, in such configuration, forgetting the device&apos;s password will render it inoperative and non-resettable.&lt;br&gt;Please store its password properly.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A configuração de segurança atual é &lt;b&gt;válida&lt;/b&gt;.&lt;br&gt; No entanto, ela só permite um RESET após gerar os relatórios, e a &lt;em&gt;geração de relatórios&lt;/em&gt; está protegida por senha.&lt;br&gt;Observe que, com essa configuração, se a senha do dispositivo for esquecida, ele ficará inutilizável e não permitirá mais RESET.&lt;br&gt;Guarde bem a senha.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>GuideDialog</name>
    <message>
        <source>Quickstart Guide</source>
        <translation>Guia de início rápido</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Brumalogger Configuration Tool</source>
        <translation>Brumalogger Configuration Tool</translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation>Informações do dispositivo</translation>
    </message>
    <message>
        <source>Device Name: </source>
        <translation>Nome do dispositivo: </translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Firmware Version: </source>
        <translation>Versão do firmware: </translation>
    </message>
    <message>
        <source>Hardware Revision:</source>
        <translation>Revisão de hardware:</translation>
    </message>
    <message>
        <source>Internal ID: </source>
        <translation>ID interno: </translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Date/time of last reset:</source>
        <translation>Data/hora do último RESET:</translation>
    </message>
    <message>
        <source>Date/time on device:</source>
        <translation>Data/hora do dispositivo:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Time Zone on device:</source>
        <translation>Fuso horário do dispositivo:</translation>
    </message>
    <message>
        <source>Device Setup</source>
        <translation>Parâmetros do dispositivo</translation>
    </message>
    <message>
        <source>Sampling time</source>
        <translation>Intervalo de amostragem</translation>
    </message>
    <message>
        <source>Custom time (minutes):</source>
        <translation>Intervalo personalizado (minutos):</translation>
    </message>
    <message>
        <source>Start delay</source>
        <translation>Atraso de início</translation>
    </message>
    <message>
        <source>Custom delay (minutes)</source>
        <translation>Atraso personalizado (minutos)</translation>
    </message>
    <message>
        <source>Operating temperature range</source>
        <translation>Faixa de temperatura de operação</translation>
    </message>
    <message>
        <source>Minimum (°C):</source>
        <translation>Mínimo (°C):</translation>
    </message>
    <message>
        <source>Maximum (°C):</source>
        <translation>Máximo (°C):</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Desativar alterações pelo botão</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Opções avançadas</translation>
    </message>
    <message>
        <source>Report Information (optional)</source>
        <translation>Informações do relatório (opcional)</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Remetente:</translation>
    </message>
    <message>
        <source>(0/60)</source>
        <translation>(0/60)</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinatário:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informações:</translation>
    </message>
    <message>
        <source>Tracking Information (optional)</source>
        <translation>Informações de rastreamento (opcional)</translation>
    </message>
    <message>
        <source>Barcode on logger:</source>
        <translation>Código de barras do registrador:</translation>
    </message>
    <message>
        <source>(0/10)</source>
        <translation>(0/10)</translation>
    </message>
    <message>
        <source>Shipment type:</source>
        <translation>Tipo de envio:</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Ler</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Defaut preset    </source>
        <translation>Predefinição padrão    </translation>
    </message>
    <message>
        <source>Start  </source>
        <translation>Iniciar  </translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Save all to preset</source>
        <translation>Salvar tudo como predefinição</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Load from preset</source>
        <translation>Carregar predefinição</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Online help</source>
        <translation>Ajuda on-line</translation>
    </message>
    <message>
        <source>Quickstart guide</source>
        <translation>Guia de início rápido</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Read data from device (%1)</source>
        <translation>Ler dados do dispositivo (%1)</translation>
    </message>
    <message>
        <source>Write data to device (%1)</source>
        <translation>Gravar dados no dispositivo (%1)</translation>
    </message>
    <message>
        <source>Start device (%1)</source>
        <translation>Iniciar dispositivo (%1)</translation>
    </message>
    <message>
        <source>Load default preset (%1)</source>
        <translation>Carregar predefinição padrão (%1)</translation>
    </message>
    <message>
        <source>Advanced security and startup options</source>
        <translation>Opções avançadas de segurança e início</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to exit?</source>
        <translation>Há alterações que não foram gravadas no dispositivo.
Deseja realmente sair?</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>&lt;p&gt;No device found!&lt;br&gt;</source>
        <translation>&lt;p&gt;Nenhum dispositivo encontrado!&lt;br&gt;</translation>
    </message>
    <message>
        <source>Make sure the device is connected and try again.&lt;br&gt;</source>
        <translation>Verifique se o dispositivo está conectado e tente novamente.&lt;br&gt;</translation>
    </message>
    <message>
        <source>If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will be &lt;b&gt;unable&lt;/b&gt; to connect to it.&lt;/p&gt;</source>
        <translation>Se o Brumalogger USB já estiver conectado como pen drive USB, este software &lt;b&gt;não poderá&lt;/b&gt; se conectar a ele.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connecting to device... </source>
        <translation>Conectando ao dispositivo... </translation>
    </message>
    <message>
        <source>&lt;p&gt;Connected to device, but failed to read it correctly.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Conectado ao dispositivo, mas a leitura falhou.&lt;br&gt;Repita a operação Ler.&lt;br&gt;Se o problema persistir, selecione &lt;b&gt;Desativar leitura/gravação rápida&lt;/b&gt; no menu &lt;b&gt;Configurações&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connected to device on %1</source>
        <translation>Conectado ao dispositivo em %1</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Desconectando</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to disconnect?</source>
        <translation>Há alterações que não foram gravadas no dispositivo.
Deseja realmente desconectar?</translation>
    </message>
    <message>
        <source>Disconnected from %1</source>
        <translation>Desconectado de %1</translation>
    </message>
    <message>
        <source>Invalid device detected.</source>
        <translation>Dispositivo inválido detectado.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Alerta</translation>
    </message>
    <message>
        <source>This device is in an invalid state.
No connection can be established. Aborting.</source>
        <translation>Este dispositivo está em um estado inválido.
Não é possível estabelecer a conexão. Operação cancelada.</translation>
    </message>
    <message>
        <source>Connect to device (%1)</source>
        <translation>Conectar ao dispositivo (%1)</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Disconnect from device (%1)</source>
        <translation>Desconectar do dispositivo (%1)</translation>
    </message>
    <message>
        <source>Fetching time and date from server pool...</source>
        <translation>Obtendo data e hora de um grupo de servidores...</translation>
    </message>
    <message>
        <source>Fetching time and date from %1...</source>
        <translation>Obtendo data e hora de %1...</translation>
    </message>
    <message>
        <source>server pool</source>
        <translation>um grupo de servidores</translation>
    </message>
    <message>
        <source>Successfully fetched time and date from %1.</source>
        <translation>Data e hora obtidas de %1.</translation>
    </message>
    <message>
        <source>Unable to fetch date and time from %1. Check your connections or try another server.</source>
        <translation>Não foi possível obter a data e a hora de %1. Verifique as conexões ou tente outro servidor.</translation>
    </message>
    <message>
        <source>Copy as text...</source>
        <translation>Copiar como texto...</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;The device&apos;s battery is LOW.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;A bateria do dispositivo está FRACA.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please replace the battery immediately.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Troque a bateria imediatamente.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please refrain from using this device.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Não use este dispositivo.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read from device</source>
        <translation>Ler do dispositivo</translation>
    </message>
    <message>
        <source>Reading from the device now will erase your changes.
Do you wish to proceed?</source>
        <translation>Ler do dispositivo agora apagará suas alterações.
Deseja continuar?</translation>
    </message>
    <message>
        <source>Reading from device on %1</source>
        <translation>Lendo do dispositivo em %1</translation>
    </message>
    <message>
        <source>Reading from device</source>
        <translation>Lendo do dispositivo</translation>
    </message>
    <message>
        <source>&lt;p&gt;Read procedure failed.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A leitura falhou.&lt;br&gt;Repita a operação Ler.&lt;br&gt;Se o problema persistir, selecione &lt;b&gt;Desativar leitura/gravação rápida&lt;/b&gt; no menu &lt;b&gt;Configurações&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read failed. Please retry.</source>
        <translation>A leitura falhou. Tente novamente.</translation>
    </message>
    <message>
        <source>Read successful</source>
        <translation>Leitura concluída</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutos</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minutos</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minutos</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minutos</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation>2 horas</translation>
    </message>
    <message>
        <source>3 hours</source>
        <translation>3 horas</translation>
    </message>
    <message>
        <source>4 hours</source>
        <translation>4 horas</translation>
    </message>
    <message>
        <source>2°C to 8°C</source>
        <translation>2 °C a 8 °C</translation>
    </message>
    <message>
        <source>-10°C to -1°C</source>
        <translation>-10 °C a -1 °C</translation>
    </message>
    <message>
        <source>-8°C to -2°C</source>
        <translation>-8 °C a -2 °C</translation>
    </message>
    <message>
        <source>2°C to 25°C</source>
        <translation>2 °C a 25 °C</translation>
    </message>
    <message>
        <source>15°C to 25°C</source>
        <translation>15 °C a 25 °C</translation>
    </message>
    <message>
        <source>15°C to 30°C</source>
        <translation>15 °C a 30 °C</translation>
    </message>
    <message>
        <source>-30°C to -15°C</source>
        <translation>-30 °C a -15 °C</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Maximum temperature must be at least
one degree higher than minimum temperature.</source>
        <translation>A temperatura máxima deve ser pelo menos
um grau superior à temperatura mínima.</translation>
    </message>
    <message>
        <source>Starting logger</source>
        <translation>Iniciando registrador</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to start the device?</source>
        <translation>Há alterações que não foram gravadas no dispositivo.
Deseja realmente iniciar o dispositivo?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Do you wish to start the device?
This operation cannot be undone.</source>
        <translation>Deseja iniciar o dispositivo?
Esta operação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Software START is disabled</source>
        <translation>START pelo software desativado</translation>
    </message>
    <message>
        <source>Software START is disabled on this logger.</source>
        <translation>O START pelo software está desativado neste registrador.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Failed to start the device</source>
        <translation>Não foi possível iniciar o dispositivo</translation>
    </message>
    <message>
        <source>Check your START/STOP dates</source>
        <translation>Verifique as datas de START/STOP</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current settings for the automatic START and/or STOP dates are invalid (probably outdated). Please check the &lt;b&gt;Advanced Options&lt;/b&gt; panel before continuing with the &lt;b&gt;Write&lt;/b&gt; operation.&lt;/p&gt;</source>
        <translation>&lt;p&gt;As configurações atuais das datas automáticas de START e/ou STOP são inválidas (provavelmente desatualizadas). Verifique o painel &lt;b&gt;Opções avançadas&lt;/b&gt; antes de continuar com a operação &lt;b&gt;Gravar&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Writing to device...</source>
        <translation>Gravando no dispositivo...</translation>
    </message>
    <message>
        <source>Writing to device</source>
        <translation>Gravando no dispositivo</translation>
    </message>
    <message>
        <source>Write procedure canceled by user.
Parameters on device may be in an undefined state.
Executing the procedure again is recommended.</source>
        <translation>Gravação cancelada pelo usuário.
Os parâmetros no dispositivo podem estar em um estado indefinido.
Recomenda-se repetir a operação.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Write procedure failed.&lt;br&gt;Parameters on device may be in an undefined state.
Executing the procedure again is recommended.
If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;A gravação falhou.&lt;br&gt;Os parâmetros no dispositivo podem estar em um estado indefinido.
Recomenda-se repetir a operação.
Se o problema persistir, selecione &lt;b&gt;Desativar leitura/gravação rápida&lt;/b&gt; no menu &lt;b&gt;Configurações&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Write successful</source>
        <translation>Gravação concluída</translation>
    </message>
    <message>
        <source>Write failed. Please retry</source>
        <translation>A gravação falhou. Tente novamente</translation>
    </message>
    <message>
        <source>Updating time and date settings.</source>
        <translation>Atualizando as configurações de data e hora.</translation>
    </message>
    <message>
        <source>Changing Time Zone setting</source>
        <translation>Alteração do fuso horário</translation>
    </message>
    <message>
        <source>&lt;p&gt;There are automatic START/STOP dates that were configured using a different Time Zone setting. Please review these settings in the &lt;b&gt;Advanced Options&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Há datas automáticas de START/STOP que foram configuradas com outro fuso horário. Verifique essas configurações no menu &lt;b&gt;Opções avançadas&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save to preset</source>
        <translation>Salvar como predefinição</translation>
    </message>
    <message>
        <source>Load preset</source>
        <translation>Carregar predefinição</translation>
    </message>
    <message>
        <source>Unable to read from selected file. File is corrupted.</source>
        <translation>Não foi possível ler o arquivo selecionado. O arquivo está corrompido.</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>%1 foi carregado</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for synchronization.
Time Zone will be ignored.</source>
        <translation>A predefinição carregada define um fuso horário (%1), mas os servidores de hora não podem ser acessados para a sincronização.
O fuso horário será ignorado.</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Configuration is currently disabled.
Time Zone will be ignored.</source>
        <translation>A predefinição carregada define um fuso horário (%1), mas a configuração da hora está desativada.
O fuso horário será ignorado.</translation>
    </message>
    <message>
        <source>About Brumalogger Configuration Tool</source>
        <translation>Sobre o Brumalogger Configuration Tool</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is recommended.&lt;p&gt;&lt;/p&gt;Click Ok to download it.&lt;/center&gt;</source>
        <translation>O Brumalogger Configuration Tool v%1 está disponível para download.&lt;p&gt;&lt;/p&gt;Recomenda-se atualizar a versão atual (v%2.%3.%4).&lt;p&gt;&lt;/p&gt;Clique em OK para baixá-lo.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>Update Required</source>
        <translation>Atualização obrigatória</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is mandatory.&lt;p&gt;&lt;/p&gt;This version contains important changes, so the update &lt;font color=&apos;red&apos;&gt;must&lt;/font&gt; be performed.&lt;p&gt;&lt;/p&gt;Click Ok to download it, or Cancel to quit the application.&lt;/center&gt;</source>
        <translation>O Brumalogger Configuration Tool v%1 está disponível para download.&lt;p&gt;&lt;/p&gt;É obrigatório atualizar a versão atual (v%2.%3.%4).&lt;p&gt;&lt;/p&gt;Esta versão contém alterações importantes, por isso a atualização &lt;font color=&apos;red&apos;&gt;precisa&lt;/font&gt; ser feita.&lt;p&gt;&lt;/p&gt;Clique em OK para baixá-la ou em Cancelar para sair do aplicativo.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password protected device</source>
        <translation>Dispositivo protegido por senha</translation>
    </message>
    <message>
        <source>This device is password protected. Please unlock it to continue:</source>
        <translation>Este dispositivo está protegido por senha. Desbloqueie-o para continuar:</translation>
    </message>
    <message>
        <source>Logger Information</source>
        <translation>Informações do registrador</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Remetente:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinatário:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informações:</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Mais...</translation>
    </message>
    <message>
        <source>The device is in the IDLE state.
After unlocking, it will be configurable with this tool.</source>
        <translation>O dispositivo está no estado IDLE.
Após o desbloqueio, ele poderá ser configurado com este software.</translation>
    </message>
    <message>
        <source>The device is in the FINISHED state.
After unlocking, the measurement reports will become available.</source>
        <translation>O dispositivo está no estado FINISHED.
Após o desbloqueio, os relatórios de medição ficarão disponíveis.</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Menos...</translation>
    </message>
    <message>
        <source>Failed while trying to unlock device.</source>
        <translation>Erro ao tentar desbloquear o dispositivo.</translation>
    </message>
    <message>
        <source>Incorrect password.</source>
        <translation>Senha incorreta.</translation>
    </message>
    <message>
        <source>Unlock device</source>
        <translation>Desbloquear dispositivo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>I/O error when reading %1: %2</source>
        <translation>Erro de E/S ao ler %1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Default Preset</source>
        <translation>Predefinição padrão</translation>
    </message>
    <message>
        <source>Enable preset</source>
        <translation>Ativar predefinição</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Application font size:</source>
        <translation>Tamanho da fonte do aplicativo:</translation>
    </message>
    <message>
        <source>Application language:</source>
        <translation>Idioma do aplicativo:</translation>
    </message>
    <message>
        <source>Device Time Configuration</source>
        <translation>Configuração da hora do dispositivo</translation>
    </message>
    <message>
        <source>Time Server (NTP):</source>
        <translation>Servidor de hora (NTP):</translation>
    </message>
    <message>
        <source>Disable Time Configuration</source>
        <translation>Desativar a configuração da hora</translation>
    </message>
    <message>
        <source>Enable/disable Time Zone Editor functinality.</source>
        <translation>Ativa/desativa o Editor de fuso horário.</translation>
    </message>
    <message>
        <source>Enforce use of time server</source>
        <translation>Exigir o uso de um servidor de hora</translation>
    </message>
    <message>
        <source>Fetch time reference from time server instead of using local computer time.</source>
        <translation>Obtém a hora de referência de um servidor de hora em vez de usar a hora deste computador.</translation>
    </message>
    <message>
        <source>Use multiple time servers (recommended)</source>
        <translation>Usar vários servidores de hora (recomendado)</translation>
    </message>
    <message>
        <source>Fetch time reference from multiple servers. Using single servers is disencouraged, as they may send slightly outdated references.</source>
        <translation>Obtém a hora de referência de vários servidores. Não é aconselhável usar um único servidor, pois ele pode enviar uma referência ligeiramente desatualizada.</translation>
    </message>
    <message>
        <source>General Device Settings</source>
        <translation>Configurações gerais do dispositivo</translation>
    </message>
    <message>
        <source>Disable fast Read/Write (recommended for slower computers)</source>
        <translation>Desativar leitura/gravação rápida (recomendado para computadores lentos)</translation>
    </message>
    <message>
        <source>Disables the standard fast Read/Write. Recommended if the computer is facing issues during Read/Write operations to the device.</source>
        <translation>Desativa a leitura/gravação rápida padrão. Recomendado se o computador apresentar problemas ao ler ou gravar no dispositivo.</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recomendado</translation>
    </message>
    <message>
        <source>Select preset</source>
        <translation>Selecionar predefinição</translation>
    </message>
</context>
<context>
    <name>TimeZoneDialog</name>
    <message>
        <source>Time Zone Editor</source>
        <translation>Editor de fuso horário</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referência</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Fonte:</translation>
    </message>
    <message>
        <source>UTC/GMT:</source>
        <translation>UTC/GMT:</translation>
    </message>
    <message>
        <source>Local:</source>
        <translation>Local:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Atual:</translation>
    </message>
    <message>
        <source>Set to:</source>
        <translation>Ajustar para:</translation>
    </message>
    <message>
        <source>Updated date/time:</source>
        <translation>Nova data/hora:</translation>
    </message>
    <message>
        <source> (Time Zone Unknown)</source>
        <translation> (Fuso horário desconhecido)</translation>
    </message>
    <message>
        <source>This computer&apos;s clock</source>
        <translation>Relógio deste computador</translation>
    </message>
    <message>
        <source>Server pool</source>
        <translation>Grupo de servidores</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>Are you sure you want to change the device&apos;s time setting?</source>
        <translation>Tem certeza de que deseja alterar a hora do dispositivo?</translation>
    </message>
</context>
</TS>
