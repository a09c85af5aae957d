<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AdvancedOptionsDialog</name>
    <message>
        <source>Advanced Options</source>
        <translation>Opciones avanzadas</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;em&gt;Hover the mouse over any item for more information.&lt;/em&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;em&gt;Pase el ratón sobre un elemento para obtener más información.&lt;/em&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Impedir cambios con el botón</translation>
    </message>
    <message>
        <source>&lt;p&gt;Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING RANGE configurations.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Impide cambiar el INTERVALO DE MUESTREO y el RANGO DE TEMPERATURA OPERATIVA con el botón físico.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password for software configuration</source>
        <translation>Exigir contraseña para configurar con el software</translation>
    </message>
    <message>
        <source>&lt;p&gt;Requires password to perform any configuration via software tool.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Exige la contraseña para cualquier configuración con el software.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Do not require password to view reports</source>
        <translation>No exigir contraseña para ver los informes</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, device will automatically appear as a USB thumb drive containing the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Al conectarse por USB en el estado DONE, el dispositivo aparecerá automáticamente como una memoria USB con los informes.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password only to access report for the first time</source>
        <translation>Exigir contraseña solo la primera vez que se accede al informe</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, the device will require the password only &lt;b&gt;once&lt;/b&gt; to generate the reports. The device must be unlocked using this tool. After unlocking, it will &lt;b&gt;always&lt;/b&gt; appear as a USB thumb drive with the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Al conectarse por USB en el estado DONE, el dispositivo exigirá la contraseña &lt;b&gt;una sola vez&lt;/b&gt; para generar los informes. El dispositivo se debe desbloquear con este programa. Después del desbloqueo, aparecerá &lt;b&gt;siempre&lt;/b&gt; como una memoria USB con los informes.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password always when accessing reports</source>
        <translation>Exigir siempre contraseña para acceder a los informes</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Upon &lt;span style=&quot; font-weight:600;&quot;&gt;every&lt;/span&gt; USB connection in the DONE state, the device will require the password to display the reports. The device must be unlocked using this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is disconnected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;En &lt;span style=&quot; font-weight:600;&quot;&gt;cada&lt;/span&gt; conexión por USB en el estado DONE, el dispositivo exigirá la contraseña para mostrar los informes. El dispositivo se debe desbloquear con este programa. Después del desbloqueo, aparecerá como una memoria USB con los informes hasta que se desconecte.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Start &amp;&amp; Stop Policies</source>
        <translation>Reglas de inicio y parada</translation>
    </message>
    <message>
        <source>Allow START via physical button</source>
        <translation>Permitir START con el botón físico</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the START of the device (entering RECORDING mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite el START del dispositivo (paso al modo RECORDING) con el &lt;span style=&quot; font-weight:600;&quot;&gt;botón multifunción &lt;/span&gt;(es decir, con dos &lt;span style=&quot; font-style:italic;&quot;&gt;pulsaciones de 5 segundos&lt;/span&gt; o con 12 pulsaciones cortas).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow START via software tool</source>
        <translation>Permitir START con el software</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows the logger to be placed in RECORDING mode via this software tool.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite poner el registrador en el modo RECORDING con este software.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow STOP via physical button</source>
        <translation>Permitir STOP con el botón físico</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the STOP of the device (entering DONE mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite el STOP del dispositivo (paso al modo DONE) con el &lt;span style=&quot; font-weight:600;&quot;&gt;botón multifunción &lt;/span&gt;(es decir, con dos &lt;span style=&quot; font-style:italic;&quot;&gt;pulsaciones de 5 segundos&lt;/span&gt; o con 12 pulsaciones cortas).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP device immediately when attached to USB port</source>
        <translation>STOP inmediato al conectar el dispositivo a un puerto USB</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows a device in the RECORDING state to immediately STOP into the DONE state when attached to an USB port. The &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; is &lt;span style=&quot; font-weight:600;&quot;&gt;not&lt;/span&gt; required.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permite que un dispositivo en el estado RECORDING haga STOP y pase de inmediato al estado DONE al conectarse a un puerto USB. &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; &lt;span style=&quot; font-weight:600;&quot;&gt;no&lt;/span&gt; es necesario.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>START automatically on: -</source>
        <translation>START automático el: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically START on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;El dispositivo hará START automáticamente en la fecha fijada. La zona horaria es la configurada en el dispositivo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP automatically on: -</source>
        <translation>STOP automático el: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically STOP on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;El dispositivo hará STOP automáticamente en la fecha fijada. La zona horaria es la configurada en el dispositivo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Multiuse device options</source>
        <translation>Opciones de dispositivos Multiuse</translation>
    </message>
    <message>
        <source>Allow device RESET at any time</source>
        <translation>Permitir RESET en cualquier momento</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse logger can be RESET at &lt;span style=&quot; font-weight:600;&quot;&gt;any&lt;/span&gt; time.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Se puede hacer un RESET de un registrador Multiuse en &lt;span style=&quot; font-weight:600;&quot;&gt;cualquier&lt;/span&gt; momento.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after STOP</source>
        <translation>Permitir RESET solo después de STOP</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot; font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Se puede hacer un RESET de un dispositivo Multiuse &lt;span style=&quot; font-weight:600;&quot;&gt;solo&lt;/span&gt; en el estado DONE (es decir, después de detener las mediciones).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Changes will take full effect upon disconnecting the Brumalogger from the USB port.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Los cambios surtirán pleno efecto al retirar el Brumalogger del puerto USB.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after reports are generated</source>
        <translation>Permitir RESET solo después de generar los informes</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot;font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least once.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Se puede hacer un RESET de un dispositivo Multiuse &lt;span style=&quot;font-weight:600;&quot;&gt;solo&lt;/span&gt; en el estado DONE (es decir, después de detener las mediciones) y tras ver los informes al menos una vez.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password too long</source>
        <translation>Contraseña demasiado larga</translation>
    </message>
    <message>
        <source>Password may not be larger than %1 characters.
Your input was truncated.</source>
        <translation>La contraseña no puede tener más de %1 caracteres.
El texto introducido se ha recortado.</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>&lt;p&gt;Once a device is password protected, it can only be unlocked with the &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Ensure that the customer receiving the logger can install and use this software before shipping a locked &lt;b&gt;Brumalogger USB&lt;/b&gt;.&lt;br&gt;Furthermore, note that it is &lt;b&gt;not possible&lt;/b&gt; to recover or restore the password of a locked device.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Una vez protegido por contraseña, un dispositivo solo se puede desbloquear con &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Antes de enviar un &lt;b&gt;Brumalogger USB&lt;/b&gt; bloqueado, asegúrese de que el cliente que lo recibe puede instalar y usar este software.&lt;br&gt;Además, tenga en cuenta que &lt;b&gt;no es posible&lt;/b&gt; recuperar ni restablecer la contraseña de un dispositivo bloqueado.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>START automatically on: </source>
        <translation>START automático el: </translation>
    </message>
    <message>
        <source>STOP automatically on: </source>
        <translation>STOP automático el: </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select a START Date and Time</source>
        <translation>Seleccionar fecha y hora de START</translation>
    </message>
    <message>
        <source>Select a STOP Date and Time</source>
        <translation>Seleccionar fecha y hora de STOP</translation>
    </message>
    <message>
        <source>Empty password field</source>
        <translation>Contraseña vacía</translation>
    </message>
    <message>
        <source>&lt;p&gt;Please specify a password or disable any options requering it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Indique una contraseña o desactive las opciones que la exigen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START and STOP date</source>
        <translation>Fechas de START y STOP no válidas</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the START date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La fecha/hora de STOP debe ser al menos %1 minutos posterior a la fecha/hora de START. Compruebe la configuración.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START date</source>
        <translation>Fecha de START no válida</translation>
    </message>
    <message>
        <source>&lt;p&gt;The START date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La fecha/hora de START debe ser al menos %1 minutos posterior a la fecha/hora actual. Compruebe la configuración.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid STOP date</source>
        <translation>Fecha de STOP no válida</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La fecha/hora de STOP debe ser al menos %1 minutos posterior a la fecha/hora actual. Compruebe la configuración.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No START enabled</source>
        <translation>Ningún START activado</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid START configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; START option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;No hay activada ninguna configuración de START válida.&lt;br&gt;Active al menos &lt;b&gt;una&lt;/b&gt; opción de START.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No STOP enabled</source>
        <translation>Ningún STOP activado</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid STOP configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; STOP option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;No hay activada ninguna configuración de STOP válida.&lt;br&gt;Active al menos &lt;b&gt;una&lt;/b&gt; opción de STOP.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current security configuration is &lt;b&gt;valid&lt;/b&gt;.&lt;br&gt; However, it only allows a RESET after the reports are generated, and &lt;em&gt;report generation&lt;/em&gt; is password protected.&lt;br&gt;Please note that, in such configuration, forgetting the device&apos;s password will render it inoperative and non-resettable.&lt;br&gt;Please store its password properly.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La configuración de seguridad actual es &lt;b&gt;válida&lt;/b&gt;.&lt;br&gt; Sin embargo, solo permite un RESET después de generar los informes, y la &lt;em&gt;generación de informes&lt;/em&gt; está protegida por contraseña.&lt;br&gt;Tenga en cuenta que, con esta configuración, si se olvida la contraseña del dispositivo, este quedará inutilizable y no admitirá un RESET.&lt;br&gt;Guarde la contraseña en un lugar seguro.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>GuideDialog</name>
    <message>
        <source>Quickstart Guide</source>
        <translation>Guía de inicio rápido</translation>
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
        <translation>Información del dispositivo</translation>
    </message>
    <message>
        <source>Device Name: </source>
        <translation>Nombre del dispositivo: </translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Firmware Version: </source>
        <translation>Versión de firmware: </translation>
    </message>
    <message>
        <source>Hardware Revision:</source>
        <translation>Revisión de hardware:</translation>
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
        <translation>Fecha/hora del último RESET:</translation>
    </message>
    <message>
        <source>Date/time on device:</source>
        <translation>Fecha/hora del dispositivo:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Time Zone on device:</source>
        <translation>Zona horaria del dispositivo:</translation>
    </message>
    <message>
        <source>Device Setup</source>
        <translation>Parámetros del dispositivo</translation>
    </message>
    <message>
        <source>Sampling time</source>
        <translation>Intervalo de muestreo</translation>
    </message>
    <message>
        <source>Custom time (minutes):</source>
        <translation>Intervalo personalizado (min):</translation>
    </message>
    <message>
        <source>Start delay</source>
        <translation>Retardo de inicio</translation>
    </message>
    <message>
        <source>Custom delay (minutes)</source>
        <translation>Retardo personalizado (min)</translation>
    </message>
    <message>
        <source>Operating temperature range</source>
        <translation>Rango de temperatura operativa</translation>
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
        <translation>Impedir cambios con el botón</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Opciones avanzadas</translation>
    </message>
    <message>
        <source>Report Information (optional)</source>
        <translation>Información del informe (opcional)</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Remitente:</translation>
    </message>
    <message>
        <source>(0/60)</source>
        <translation>(0/60)</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinatario:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Información:</translation>
    </message>
    <message>
        <source>Tracking Information (optional)</source>
        <translation>Información de seguimiento (opcional)</translation>
    </message>
    <message>
        <source>Barcode on logger:</source>
        <translation>Código de barras del registrador:</translation>
    </message>
    <message>
        <source>(0/10)</source>
        <translation>(0/10)</translation>
    </message>
    <message>
        <source>Shipment type:</source>
        <translation>Tipo de envío:</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>Defaut preset    </source>
        <translation>Plantilla predeterminada    </translation>
    </message>
    <message>
        <source>Start  </source>
        <translation>Iniciar  </translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Save all to preset</source>
        <translation>Guardar todo en plantilla</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Load from preset</source>
        <translation>Cargar desde plantilla</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Online help</source>
        <translation>Ayuda en línea</translation>
    </message>
    <message>
        <source>Quickstart guide</source>
        <translation>Guía de inicio rápido</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Read data from device (%1)</source>
        <translation>Leer datos del dispositivo (%1)</translation>
    </message>
    <message>
        <source>Write data to device (%1)</source>
        <translation>Escribir datos en el dispositivo (%1)</translation>
    </message>
    <message>
        <source>Start device (%1)</source>
        <translation>Iniciar el dispositivo (%1)</translation>
    </message>
    <message>
        <source>Load default preset (%1)</source>
        <translation>Cargar la plantilla predeterminada (%1)</translation>
    </message>
    <message>
        <source>Advanced security and startup options</source>
        <translation>Opciones avanzadas de seguridad e inicio</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to exit?</source>
        <translation>Hay cambios que no se han escrito en el dispositivo.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>&lt;p&gt;No device found!&lt;br&gt;</source>
        <translation>&lt;p&gt;¡No se encontró ningún dispositivo!&lt;br&gt;</translation>
    </message>
    <message>
        <source>Make sure the device is connected and try again.&lt;br&gt;</source>
        <translation>Compruebe que el dispositivo está conectado e inténtelo de nuevo.&lt;br&gt;</translation>
    </message>
    <message>
        <source>If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will be &lt;b&gt;unable&lt;/b&gt; to connect to it.&lt;/p&gt;</source>
        <translation>Si su Brumalogger USB ya está conectado como memoria USB, este software &lt;b&gt;no podrá&lt;/b&gt; conectarse a él.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connecting to device... </source>
        <translation>Conectando al dispositivo... </translation>
    </message>
    <message>
        <source>&lt;p&gt;Connected to device, but failed to read it correctly.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Conectado al dispositivo, pero no se pudo leer correctamente.&lt;br&gt;Repita la lectura.&lt;br&gt;Si el problema persiste, seleccione &lt;b&gt;Desactivar lectura/escritura rápida&lt;/b&gt; en el menú &lt;b&gt;Configuración&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connected to device on %1</source>
        <translation>Conectado al dispositivo en %1</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Desconexión</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to disconnect?</source>
        <translation>Hay cambios que no se han escrito en el dispositivo.
¿Está seguro de que desea desconectar?</translation>
    </message>
    <message>
        <source>Disconnected from %1</source>
        <translation>Desconectado de %1</translation>
    </message>
    <message>
        <source>Invalid device detected.</source>
        <translation>Se ha detectado un dispositivo no válido.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>This device is in an invalid state.
No connection can be established. Aborting.</source>
        <translation>Este dispositivo se encuentra en un estado no válido.
No se puede establecer la conexión. Operación cancelada.</translation>
    </message>
    <message>
        <source>Connect to device (%1)</source>
        <translation>Conectar al dispositivo (%1)</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Disconnect from device (%1)</source>
        <translation>Desconectar del dispositivo (%1)</translation>
    </message>
    <message>
        <source>Fetching time and date from server pool...</source>
        <translation>Obteniendo fecha y hora de un grupo de servidores...</translation>
    </message>
    <message>
        <source>Fetching time and date from %1...</source>
        <translation>Obteniendo fecha y hora de %1...</translation>
    </message>
    <message>
        <source>server pool</source>
        <translation>un grupo de servidores</translation>
    </message>
    <message>
        <source>Successfully fetched time and date from %1.</source>
        <translation>Fecha y hora obtenidas de %1.</translation>
    </message>
    <message>
        <source>Unable to fetch date and time from %1. Check your connections or try another server.</source>
        <translation>No se pudo obtener la fecha y la hora de %1. Compruebe la conexión o pruebe otro servidor.</translation>
    </message>
    <message>
        <source>Copy as text...</source>
        <translation>Copiar como texto...</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;The device&apos;s battery is LOW.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;La batería del dispositivo está BAJA.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please replace the battery immediately.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Cambie la batería de inmediato.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please refrain from using this device.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;No use este dispositivo.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read from device</source>
        <translation>Leer el dispositivo</translation>
    </message>
    <message>
        <source>Reading from the device now will erase your changes.
Do you wish to proceed?</source>
        <translation>Si lee el dispositivo ahora, se perderán sus cambios.
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Reading from device on %1</source>
        <translation>Leyendo el dispositivo en %1</translation>
    </message>
    <message>
        <source>Reading from device</source>
        <translation>Leyendo el dispositivo</translation>
    </message>
    <message>
        <source>&lt;p&gt;Read procedure failed.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La lectura ha fallado.&lt;br&gt;Repita la lectura.&lt;br&gt;Si el problema persiste, seleccione &lt;b&gt;Desactivar lectura/escritura rápida&lt;/b&gt; en el menú &lt;b&gt;Configuración&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read failed. Please retry.</source>
        <translation>La lectura ha fallado. Repítala.</translation>
    </message>
    <message>
        <source>Read successful</source>
        <translation>Lectura correcta</translation>
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
        <translation>La temperatura máxima debe superar en al menos
un grado a la temperatura mínima.</translation>
    </message>
    <message>
        <source>Starting logger</source>
        <translation>Inicio del registrador</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to start the device?</source>
        <translation>Hay cambios que no se han escrito en el dispositivo.
¿Está seguro de que desea iniciar el dispositivo?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Do you wish to start the device?
This operation cannot be undone.</source>
        <translation>¿Desea iniciar el dispositivo?
Esta operación no se puede deshacer.</translation>
    </message>
    <message>
        <source>Software START is disabled</source>
        <translation>START por software desactivado</translation>
    </message>
    <message>
        <source>Software START is disabled on this logger.</source>
        <translation>El START por software está desactivado en este registrador.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to start the device</source>
        <translation>No se pudo iniciar el dispositivo</translation>
    </message>
    <message>
        <source>Check your START/STOP dates</source>
        <translation>Compruebe las fechas de START/STOP</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current settings for the automatic START and/or STOP dates are invalid (probably outdated). Please check the &lt;b&gt;Advanced Options&lt;/b&gt; panel before continuing with the &lt;b&gt;Write&lt;/b&gt; operation.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Las fechas automáticas de START o STOP configuradas no son válidas (probablemente ya han pasado). Compruebe el panel &lt;b&gt;Opciones avanzadas&lt;/b&gt; antes de continuar con la operación &lt;b&gt;Escribir&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Writing to device...</source>
        <translation>Escribiendo en el dispositivo...</translation>
    </message>
    <message>
        <source>Writing to device</source>
        <translation>Escribiendo en el dispositivo</translation>
    </message>
    <message>
        <source>Write procedure canceled by user.
Parameters on device may be in an undefined state.
Executing the procedure again is recommended.</source>
        <translation>Escritura cancelada por el usuario.
Los parámetros del dispositivo pueden estar en un estado indefinido.
Se recomienda repetir la escritura.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Write procedure failed.&lt;br&gt;Parameters on device may be in an undefined state.
Executing the procedure again is recommended.
If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La escritura ha fallado.&lt;br&gt;Los parámetros del dispositivo pueden estar en un estado indefinido.
Se recomienda repetir la escritura.
Si el problema persiste, seleccione &lt;b&gt;Desactivar lectura/escritura rápida&lt;/b&gt; en el menú &lt;b&gt;Configuración&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Write successful</source>
        <translation>Escritura correcta</translation>
    </message>
    <message>
        <source>Write failed. Please retry</source>
        <translation>La escritura ha fallado. Repítala</translation>
    </message>
    <message>
        <source>Updating time and date settings.</source>
        <translation>Actualizando la fecha y la hora.</translation>
    </message>
    <message>
        <source>Changing Time Zone setting</source>
        <translation>Cambio de zona horaria</translation>
    </message>
    <message>
        <source>&lt;p&gt;There are automatic START/STOP dates that were configured using a different Time Zone setting. Please review these settings in the &lt;b&gt;Advanced Options&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Hay fechas automáticas de START/STOP que se configuraron con otra zona horaria. Revíselas en el menú &lt;b&gt;Opciones avanzadas&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save to preset</source>
        <translation>Guardar en plantilla</translation>
    </message>
    <message>
        <source>Load preset</source>
        <translation>Cargar plantilla</translation>
    </message>
    <message>
        <source>Unable to read from selected file. File is corrupted.</source>
        <translation>No se puede leer el archivo seleccionado. El archivo está dañado.</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>Se ha cargado %1</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for synchronization.
Time Zone will be ignored.</source>
        <translation>La plantilla cargada establece una zona horaria (%1), pero no se puede acceder a ningún servidor de hora para la sincronización.
Se ignorará la zona horaria.</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Configuration is currently disabled.
Time Zone will be ignored.</source>
        <translation>La plantilla cargada establece una zona horaria (%1), pero la configuración de la hora está desactivada.
Se ignorará la zona horaria.</translation>
    </message>
    <message>
        <source>About Brumalogger Configuration Tool</source>
        <translation>Acerca de Brumalogger Configuration Tool</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is recommended.&lt;p&gt;&lt;/p&gt;Click Ok to download it.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 está disponible para su descarga.&lt;p&gt;&lt;/p&gt;Se recomienda actualizar la versión actual (v%2.%3.%4).&lt;p&gt;&lt;/p&gt;Haga clic en Aceptar para descargar la nueva versión.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>Update Required</source>
        <translation>Actualización obligatoria</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is mandatory.&lt;p&gt;&lt;/p&gt;This version contains important changes, so the update &lt;font color=&apos;red&apos;&gt;must&lt;/font&gt; be performed.&lt;p&gt;&lt;/p&gt;Click Ok to download it, or Cancel to quit the application.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 está disponible para su descarga.&lt;p&gt;&lt;/p&gt;Es obligatorio actualizar la versión actual (v%2.%3.%4).&lt;p&gt;&lt;/p&gt;La nueva versión contiene cambios importantes, por lo que la actualización &lt;font color=&apos;red&apos;&gt;debe&lt;/font&gt; realizarse.&lt;p&gt;&lt;/p&gt;Haga clic en Aceptar para descargarla o en Cancelar para salir de la aplicación.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password protected device</source>
        <translation>Dispositivo protegido por contraseña</translation>
    </message>
    <message>
        <source>This device is password protected. Please unlock it to continue:</source>
        <translation>Este dispositivo está protegido por contraseña. Desbloquéelo para continuar:</translation>
    </message>
    <message>
        <source>Logger Information</source>
        <translation>Información del registrador</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Remitente:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinatario:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Información:</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Más...</translation>
    </message>
    <message>
        <source>The device is in the IDLE state.
After unlocking, it will be configurable with this tool.</source>
        <translation>El dispositivo está en el estado IDLE.
Después del desbloqueo, se podrá configurar con este programa.</translation>
    </message>
    <message>
        <source>The device is in the FINISHED state.
After unlocking, the measurement reports will become available.</source>
        <translation>El dispositivo está en el estado FINISHED.
Después del desbloqueo, los informes de medición estarán disponibles.</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Menos...</translation>
    </message>
    <message>
        <source>Failed while trying to unlock device.</source>
        <translation>Error al intentar desbloquear el dispositivo.</translation>
    </message>
    <message>
        <source>Incorrect password.</source>
        <translation>Contraseña incorrecta.</translation>
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
        <translation>Error de E/S al leer %1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Default Preset</source>
        <translation>Plantilla predeterminada</translation>
    </message>
    <message>
        <source>Enable preset</source>
        <translation>Activar plantilla</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Application font size:</source>
        <translation>Tamaño de letra de la aplicación:</translation>
    </message>
    <message>
        <source>Application language:</source>
        <translation>Idioma de la aplicación:</translation>
    </message>
    <message>
        <source>Device Time Configuration</source>
        <translation>Configuración de la hora del dispositivo</translation>
    </message>
    <message>
        <source>Time Server (NTP):</source>
        <translation>Servidor de hora (NTP):</translation>
    </message>
    <message>
        <source>Disable Time Configuration</source>
        <translation>Desactivar la configuración de la hora</translation>
    </message>
    <message>
        <source>Enable/disable Time Zone Editor functinality.</source>
        <translation>Activa o desactiva el Editor de zona horaria.</translation>
    </message>
    <message>
        <source>Enforce use of time server</source>
        <translation>Exigir el uso de un servidor de hora</translation>
    </message>
    <message>
        <source>Fetch time reference from time server instead of using local computer time.</source>
        <translation>Obtiene la hora de referencia de un servidor de hora en lugar de usar la hora local del equipo.</translation>
    </message>
    <message>
        <source>Use multiple time servers (recommended)</source>
        <translation>Usar varios servidores de hora (recomendado)</translation>
    </message>
    <message>
        <source>Fetch time reference from multiple servers. Using single servers is disencouraged, as they may send slightly outdated references.</source>
        <translation>Obtiene la hora de referencia de varios servidores. No se recomienda usar un solo servidor, ya que puede enviar referencias con un ligero retraso.</translation>
    </message>
    <message>
        <source>General Device Settings</source>
        <translation>Configuración general del dispositivo</translation>
    </message>
    <message>
        <source>Disable fast Read/Write (recommended for slower computers)</source>
        <translation>Desactivar lectura/escritura rápida (recomendado para equipos lentos)</translation>
    </message>
    <message>
        <source>Disables the standard fast Read/Write. Recommended if the computer is facing issues during Read/Write operations to the device.</source>
        <translation>Desactiva la lectura/escritura rápida estándar. Recomendado si el equipo tiene problemas durante la lectura o la escritura del dispositivo.</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recomendado</translation>
    </message>
    <message>
        <source>Select preset</source>
        <translation>Seleccionar plantilla</translation>
    </message>
</context>
<context>
    <name>TimeZoneDialog</name>
    <message>
        <source>Time Zone Editor</source>
        <translation>Editor de zona horaria</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Fuente:</translation>
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
        <translation>Actual:</translation>
    </message>
    <message>
        <source>Set to:</source>
        <translation>Ajustar a:</translation>
    </message>
    <message>
        <source>Updated date/time:</source>
        <translation>Nueva fecha/hora:</translation>
    </message>
    <message>
        <source> (Time Zone Unknown)</source>
        <translation> (Zona horaria desconocida)</translation>
    </message>
    <message>
        <source>This computer&apos;s clock</source>
        <translation>Reloj de este equipo</translation>
    </message>
    <message>
        <source>Server pool</source>
        <translation>Grupo de servidores</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Are you sure you want to change the device&apos;s time setting?</source>
        <translation>¿Está seguro de que desea cambiar la hora del dispositivo?</translation>
    </message>
</context>
</TS>
