<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AdvancedOptionsDialog</name>
    <message>
        <source>Advanced Options</source>
        <translation>Opzioni avanzate</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;em&gt;Hover the mouse over any item for more information.&lt;/em&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;em&gt;Passare il mouse su una voce per maggiori informazioni.&lt;/em&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicurezza</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Disabilita modifiche da pulsante</translation>
    </message>
    <message>
        <source>&lt;p&gt;Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING RANGE configurations.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Impedisce di modificare INTERVALLO DI CAMPIONAMENTO e INTERVALLO DI TEMPERATURA OPERATIVA con il pulsante fisico.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password for software configuration</source>
        <translation>Richiedi password per la configurazione via software</translation>
    </message>
    <message>
        <source>&lt;p&gt;Requires password to perform any configuration via software tool.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Richiede la password per qualsiasi configurazione via software.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Do not require password to view reports</source>
        <translation>Non richiedere password per vedere i rapporti</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, device will automatically appear as a USB thumb drive containing the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Al collegamento USB nello stato DONE, il dispositivo compare automaticamente come chiavetta USB contenente i rapporti.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password only to access report for the first time</source>
        <translation>Richiedi password solo al primo accesso al rapporto</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, the device will require the password only &lt;b&gt;once&lt;/b&gt; to generate the reports. The device must be unlocked using this tool. After unlocking, it will &lt;b&gt;always&lt;/b&gt; appear as a USB thumb drive with the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Al collegamento USB nello stato DONE, il dispositivo richiede la password solo &lt;b&gt;una volta&lt;/b&gt; per creare i rapporti. Il dispositivo deve essere sbloccato con questo programma. Dopo lo sblocco compare &lt;b&gt;sempre&lt;/b&gt; come chiavetta USB con i rapporti.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password always when accessing reports</source>
        <translation>Richiedi sempre password per accedere ai rapporti</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Upon &lt;span style=&quot; font-weight:600;&quot;&gt;every&lt;/span&gt; USB connection in the DONE state, the device will require the password to display the reports. The device must be unlocked using this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is disconnected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A &lt;span style=&quot; font-weight:600;&quot;&gt;ogni&lt;/span&gt; collegamento USB nello stato DONE, il dispositivo richiede la password per mostrare i rapporti. Il dispositivo deve essere sbloccato con questo programma. Dopo lo sblocco compare come chiavetta USB con i rapporti finché non viene scollegato.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Start &amp;&amp; Stop Policies</source>
        <translation>Regole di avvio e arresto</translation>
    </message>
    <message>
        <source>Allow START via physical button</source>
        <translation>Consenti START con il pulsante fisico</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the START of the device (entering RECORDING mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Consente lo START del dispositivo (passaggio alla modalità RECORDING) con il &lt;span style=&quot; font-weight:600;&quot;&gt;pulsante multifunzione &lt;/span&gt;(cioè con due &lt;span style=&quot; font-style:italic;&quot;&gt;pressioni di 5 secondi&lt;/span&gt; o con 12 pressioni brevi).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow START via software tool</source>
        <translation>Consenti START via software</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows the logger to be placed in RECORDING mode via this software tool.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Consente di portare il registratore in modalità RECORDING con questo programma.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow STOP via physical button</source>
        <translation>Consenti STOP con il pulsante fisico</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the STOP of the device (entering DONE mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Consente lo STOP del dispositivo (passaggio alla modalità DONE) con il &lt;span style=&quot; font-weight:600;&quot;&gt;pulsante multifunzione &lt;/span&gt;(cioè con due &lt;span style=&quot; font-style:italic;&quot;&gt;pressioni di 5 secondi&lt;/span&gt; o con 12 pressioni brevi).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP device immediately when attached to USB port</source>
        <translation>STOP immediato al collegamento del dispositivo a una porta USB</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows a device in the RECORDING state to immediately STOP into the DONE state when attached to an USB port. The &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; is &lt;span style=&quot; font-weight:600;&quot;&gt;not&lt;/span&gt; required.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Consente a un dispositivo nello stato RECORDING di eseguire immediatamente lo STOP e passare allo stato DONE quando viene collegato a una porta USB. Il &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; &lt;span style=&quot; font-weight:600;&quot;&gt;non&lt;/span&gt; è necessario.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>START automatically on: -</source>
        <translation>START automatico il: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically START on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Il dispositivo esegue automaticamente lo START alla data impostata. Il fuso orario è quello configurato sul dispositivo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP automatically on: -</source>
        <translation>STOP automatico il: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically STOP on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Il dispositivo esegue automaticamente lo STOP alla data impostata. Il fuso orario è quello configurato sul dispositivo.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Multiuse device options</source>
        <translation>Opzioni dei dispositivi Multiuse</translation>
    </message>
    <message>
        <source>Allow device RESET at any time</source>
        <translation>Consenti RESET in qualsiasi momento</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse logger can be RESET at &lt;span style=&quot; font-weight:600;&quot;&gt;any&lt;/span&gt; time.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Il RESET di un registratore Multiuse è possibile in &lt;span style=&quot; font-weight:600;&quot;&gt;qualsiasi&lt;/span&gt; momento.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after STOP</source>
        <translation>Consenti RESET solo dopo STOP</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot; font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Il RESET di un dispositivo Multiuse è possibile &lt;span style=&quot; font-weight:600;&quot;&gt;solo&lt;/span&gt; nello stato DONE (cioè dopo l&apos;arresto delle misure).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Changes will take full effect upon disconnecting the Brumalogger from the USB port.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Le modifiche avranno pieno effetto dopo aver scollegato il Brumalogger dalla porta USB.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after reports are generated</source>
        <translation>Consenti RESET solo dopo la creazione dei rapporti</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot;font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least once.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Il RESET di un dispositivo Multiuse è possibile &lt;span style=&quot;font-weight:600;&quot;&gt;solo&lt;/span&gt; nello stato DONE (cioè dopo l&apos;arresto delle misure) e dopo aver visto i rapporti almeno una volta.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password too long</source>
        <translation>Password troppo lunga</translation>
    </message>
    <message>
        <source>Password may not be larger than %1 characters.
Your input was truncated.</source>
        <translation>La password non può superare i %1 caratteri.
Il testo immesso è stato troncato.</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>&lt;p&gt;Once a device is password protected, it can only be unlocked with the &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Ensure that the customer receiving the logger can install and use this software before shipping a locked &lt;b&gt;Brumalogger USB&lt;/b&gt;.&lt;br&gt;Furthermore, note that it is &lt;b&gt;not possible&lt;/b&gt; to recover or restore the password of a locked device.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Un dispositivo protetto da password può essere sbloccato solo con il &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Prima di spedire un &lt;b&gt;Brumalogger USB&lt;/b&gt; bloccato, assicurarsi che il cliente che lo riceve possa installare e usare questo programma.&lt;br&gt;Tenere inoltre presente che &lt;b&gt;non è possibile&lt;/b&gt; recuperare o ripristinare la password di un dispositivo bloccato.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>START automatically on: </source>
        <translation>START automatico il: </translation>
    </message>
    <message>
        <source>STOP automatically on: </source>
        <translation>STOP automatico il: </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Select a START Date and Time</source>
        <translation>Seleziona data e ora di START</translation>
    </message>
    <message>
        <source>Select a STOP Date and Time</source>
        <translation>Seleziona data e ora di STOP</translation>
    </message>
    <message>
        <source>Empty password field</source>
        <translation>Campo password vuoto</translation>
    </message>
    <message>
        <source>&lt;p&gt;Please specify a password or disable any options requering it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Specificare una password o disabilitare le opzioni che la richiedono.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START and STOP date</source>
        <translation>Date di START e STOP non valide</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the START date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La data/ora di STOP deve seguire quella di START di almeno %1 minuti. Controllare le impostazioni.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START date</source>
        <translation>Data di START non valida</translation>
    </message>
    <message>
        <source>&lt;p&gt;The START date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La data/ora di START deve seguire quella attuale di almeno %1 minuti. Controllare le impostazioni.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid STOP date</source>
        <translation>Data di STOP non valida</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La data/ora di STOP deve seguire quella attuale di almeno %1 minuti. Controllare le impostazioni.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No START enabled</source>
        <translation>Nessuno START abilitato</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid START configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; START option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nessuna configurazione di START valida è abilitata.&lt;br&gt;Abilitare almeno &lt;b&gt;un&apos;opzione&lt;/b&gt; di START.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No STOP enabled</source>
        <translation>Nessuno STOP abilitato</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid STOP configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; STOP option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nessuna configurazione di STOP valida è abilitata.&lt;br&gt;Abilitare almeno &lt;b&gt;un&apos;opzione&lt;/b&gt; di STOP.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current security configuration is &lt;b&gt;valid&lt;/b&gt;.&lt;br&gt; However, it only allows a RESET after the reports are generated, and &lt;em&gt;report generation&lt;/em&gt; is password protected.&lt;br&gt;Please note that, in such configuration, forgetting the device&apos;s password will render it inoperative and non-resettable.&lt;br&gt;Please store its password properly.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La configurazione di sicurezza attuale è &lt;b&gt;valida&lt;/b&gt;.&lt;br&gt; Tuttavia consente il RESET solo dopo la creazione dei rapporti, e la &lt;em&gt;creazione dei rapporti&lt;/em&gt; è protetta da password.&lt;br&gt;Tenere presente che, con questa configurazione, se si dimentica la password del dispositivo, questo diventa inutilizzabile e il RESET non è più possibile.&lt;br&gt;Conservare la password in un luogo sicuro.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>GuideDialog</name>
    <message>
        <source>Quickstart Guide</source>
        <translation>Guida rapida</translation>
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
        <translation>Informazioni sul dispositivo</translation>
    </message>
    <message>
        <source>Device Name: </source>
        <translation>Nome del dispositivo: </translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Firmware Version: </source>
        <translation>Versione firmware: </translation>
    </message>
    <message>
        <source>Hardware Revision:</source>
        <translation>Revisione hardware:</translation>
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
        <translation>Data/ora dell&apos;ultimo RESET:</translation>
    </message>
    <message>
        <source>Date/time on device:</source>
        <translation>Data/ora del dispositivo:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Time Zone on device:</source>
        <translation>Fuso orario del dispositivo:</translation>
    </message>
    <message>
        <source>Device Setup</source>
        <translation>Configurazione del dispositivo</translation>
    </message>
    <message>
        <source>Sampling time</source>
        <translation>Intervallo di campionamento</translation>
    </message>
    <message>
        <source>Custom time (minutes):</source>
        <translation>Intervallo personalizzato (minuti):</translation>
    </message>
    <message>
        <source>Start delay</source>
        <translation>Ritardo di avvio</translation>
    </message>
    <message>
        <source>Custom delay (minutes)</source>
        <translation>Ritardo personalizzato (minuti)</translation>
    </message>
    <message>
        <source>Operating temperature range</source>
        <translation>Intervallo di temperatura operativa</translation>
    </message>
    <message>
        <source>Minimum (°C):</source>
        <translation>Minimo (°C):</translation>
    </message>
    <message>
        <source>Maximum (°C):</source>
        <translation>Massimo (°C):</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Disabilita modifiche da pulsante</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Opzioni avanzate</translation>
    </message>
    <message>
        <source>Report Information (optional)</source>
        <translation>Informazioni del rapporto (facoltative)</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Mittente:</translation>
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
        <translation>Informazioni:</translation>
    </message>
    <message>
        <source>Tracking Information (optional)</source>
        <translation>Informazioni di tracciamento (facoltative)</translation>
    </message>
    <message>
        <source>Barcode on logger:</source>
        <translation>Codice a barre del registratore:</translation>
    </message>
    <message>
        <source>(0/10)</source>
        <translation>(0/10)</translation>
    </message>
    <message>
        <source>Shipment type:</source>
        <translation>Tipo di spedizione:</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leggi</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Scrivi</translation>
    </message>
    <message>
        <source>Defaut preset    </source>
        <translation>Preset predefinito    </translation>
    </message>
    <message>
        <source>Start  </source>
        <translation>Avvia  </translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Save all to preset</source>
        <translation>Salva tutto come preset</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Load from preset</source>
        <translation>Carica da preset</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Online help</source>
        <translation>Guida in linea</translation>
    </message>
    <message>
        <source>Quickstart guide</source>
        <translation>Guida rapida</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Read data from device (%1)</source>
        <translation>Leggi i dati dal dispositivo (%1)</translation>
    </message>
    <message>
        <source>Write data to device (%1)</source>
        <translation>Scrivi i dati sul dispositivo (%1)</translation>
    </message>
    <message>
        <source>Start device (%1)</source>
        <translation>Avvia il dispositivo (%1)</translation>
    </message>
    <message>
        <source>Load default preset (%1)</source>
        <translation>Carica il preset predefinito (%1)</translation>
    </message>
    <message>
        <source>Advanced security and startup options</source>
        <translation>Opzioni avanzate di sicurezza e avvio</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to exit?</source>
        <translation>Alcune modifiche non sono state scritte sul dispositivo.
Uscire davvero?</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>&lt;p&gt;No device found!&lt;br&gt;</source>
        <translation>&lt;p&gt;Nessun dispositivo trovato!&lt;br&gt;</translation>
    </message>
    <message>
        <source>Make sure the device is connected and try again.&lt;br&gt;</source>
        <translation>Assicurarsi che il dispositivo sia collegato e riprovare.&lt;br&gt;</translation>
    </message>
    <message>
        <source>If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will be &lt;b&gt;unable&lt;/b&gt; to connect to it.&lt;/p&gt;</source>
        <translation>Se il Brumalogger USB è già collegato come chiavetta USB, questo programma &lt;b&gt;non può&lt;/b&gt; connettersi.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connecting to device... </source>
        <translation>Connessione al dispositivo... </translation>
    </message>
    <message>
        <source>&lt;p&gt;Connected to device, but failed to read it correctly.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Connesso al dispositivo, ma la lettura non è riuscita.&lt;br&gt;Ripetere l&apos;operazione Leggi.&lt;br&gt;Se il problema persiste, selezionare &lt;b&gt;Disabilita lettura/scrittura veloce&lt;/b&gt; nel menu &lt;b&gt;Impostazioni&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connected to device on %1</source>
        <translation>Connesso al dispositivo su %1</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Disconnessione</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to disconnect?</source>
        <translation>Alcune modifiche non sono state scritte sul dispositivo.
Disconnettersi davvero?</translation>
    </message>
    <message>
        <source>Disconnected from %1</source>
        <translation>Disconnesso da %1</translation>
    </message>
    <message>
        <source>Invalid device detected.</source>
        <translation>Rilevato un dispositivo non valido.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>This device is in an invalid state.
No connection can be established. Aborting.</source>
        <translation>Questo dispositivo si trova in uno stato non valido.
Impossibile stabilire la connessione. Operazione interrotta.</translation>
    </message>
    <message>
        <source>Connect to device (%1)</source>
        <translation>Connetti al dispositivo (%1)</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Disconnect from device (%1)</source>
        <translation>Disconnetti dal dispositivo (%1)</translation>
    </message>
    <message>
        <source>Fetching time and date from server pool...</source>
        <translation>Richiesta di data e ora a un gruppo di server...</translation>
    </message>
    <message>
        <source>Fetching time and date from %1...</source>
        <translation>Richiesta di data e ora a %1...</translation>
    </message>
    <message>
        <source>server pool</source>
        <translation>un gruppo di server</translation>
    </message>
    <message>
        <source>Successfully fetched time and date from %1.</source>
        <translation>Data e ora ottenute da %1.</translation>
    </message>
    <message>
        <source>Unable to fetch date and time from %1. Check your connections or try another server.</source>
        <translation>Impossibile ottenere la data e l&apos;ora da %1. Controllare la connessione o provare un altro server.</translation>
    </message>
    <message>
        <source>Copy as text...</source>
        <translation>Copia come testo...</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;The device&apos;s battery is LOW.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;La batteria del dispositivo è SCARICA.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please replace the battery immediately.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Sostituire subito la batteria.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please refrain from using this device.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Non utilizzare questo dispositivo.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read from device</source>
        <translation>Lettura dal dispositivo</translation>
    </message>
    <message>
        <source>Reading from the device now will erase your changes.
Do you wish to proceed?</source>
        <translation>Se si legge ora dal dispositivo, le modifiche andranno perse.
Continuare?</translation>
    </message>
    <message>
        <source>Reading from device on %1</source>
        <translation>Lettura dal dispositivo su %1</translation>
    </message>
    <message>
        <source>Reading from device</source>
        <translation>Lettura dal dispositivo</translation>
    </message>
    <message>
        <source>&lt;p&gt;Read procedure failed.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Lettura non riuscita.&lt;br&gt;Ripetere l&apos;operazione Leggi.&lt;br&gt;Se il problema persiste, selezionare &lt;b&gt;Disabilita lettura/scrittura veloce&lt;/b&gt; nel menu &lt;b&gt;Impostazioni&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read failed. Please retry.</source>
        <translation>Lettura non riuscita. Riprovare.</translation>
    </message>
    <message>
        <source>Read successful</source>
        <translation>Lettura riuscita</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minuti</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minuti</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minuti</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minuti</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 ora</translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation>2 ore</translation>
    </message>
    <message>
        <source>3 hours</source>
        <translation>3 ore</translation>
    </message>
    <message>
        <source>4 hours</source>
        <translation>4 ore</translation>
    </message>
    <message>
        <source>2°C to 8°C</source>
        <translation>da 2 °C a 8 °C</translation>
    </message>
    <message>
        <source>-10°C to -1°C</source>
        <translation>da -10 °C a -1 °C</translation>
    </message>
    <message>
        <source>-8°C to -2°C</source>
        <translation>da -8 °C a -2 °C</translation>
    </message>
    <message>
        <source>2°C to 25°C</source>
        <translation>da 2 °C a 25 °C</translation>
    </message>
    <message>
        <source>15°C to 25°C</source>
        <translation>da 15 °C a 25 °C</translation>
    </message>
    <message>
        <source>15°C to 30°C</source>
        <translation>da 15 °C a 30 °C</translation>
    </message>
    <message>
        <source>-30°C to -15°C</source>
        <translation>da -30 °C a -15 °C</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Maximum temperature must be at least
one degree higher than minimum temperature.</source>
        <translation>La temperatura massima deve superare
la temperatura minima di almeno un grado.</translation>
    </message>
    <message>
        <source>Starting logger</source>
        <translation>Avvio del registratore</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to start the device?</source>
        <translation>Alcune modifiche non sono state scritte sul dispositivo.
Avviare davvero il dispositivo?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>Do you wish to start the device?
This operation cannot be undone.</source>
        <translation>Avviare il dispositivo?
Questa operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>Software START is disabled</source>
        <translation>START via software disabilitato</translation>
    </message>
    <message>
        <source>Software START is disabled on this logger.</source>
        <translation>Lo START via software è disabilitato su questo registratore.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Failed to start the device</source>
        <translation>Impossibile avviare il dispositivo</translation>
    </message>
    <message>
        <source>Check your START/STOP dates</source>
        <translation>Controllare le date di START/STOP</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current settings for the automatic START and/or STOP dates are invalid (probably outdated). Please check the &lt;b&gt;Advanced Options&lt;/b&gt; panel before continuing with the &lt;b&gt;Write&lt;/b&gt; operation.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Le impostazioni attuali delle date automatiche di START e/o STOP non sono valide (probabilmente sono scadute). Controllare il pannello &lt;b&gt;Opzioni avanzate&lt;/b&gt; prima di continuare con l&apos;operazione &lt;b&gt;Scrivi&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Writing to device...</source>
        <translation>Scrittura sul dispositivo...</translation>
    </message>
    <message>
        <source>Writing to device</source>
        <translation>Scrittura sul dispositivo</translation>
    </message>
    <message>
        <source>Write procedure canceled by user.
Parameters on device may be in an undefined state.
Executing the procedure again is recommended.</source>
        <translation>Scrittura annullata dall&apos;utente.
I parametri del dispositivo potrebbero trovarsi in uno stato indefinito.
Si consiglia di ripetere l&apos;operazione.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Write procedure failed.&lt;br&gt;Parameters on device may be in an undefined state.
Executing the procedure again is recommended.
If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Scrittura non riuscita.&lt;br&gt;I parametri del dispositivo potrebbero trovarsi in uno stato indefinito.
Si consiglia di ripetere l&apos;operazione.
Se il problema persiste, selezionare &lt;b&gt;Disabilita lettura/scrittura veloce&lt;/b&gt; nel menu &lt;b&gt;Impostazioni&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Write successful</source>
        <translation>Scrittura riuscita</translation>
    </message>
    <message>
        <source>Write failed. Please retry</source>
        <translation>Scrittura non riuscita. Riprovare</translation>
    </message>
    <message>
        <source>Updating time and date settings.</source>
        <translation>Aggiornamento delle impostazioni di data e ora.</translation>
    </message>
    <message>
        <source>Changing Time Zone setting</source>
        <translation>Modifica del fuso orario</translation>
    </message>
    <message>
        <source>&lt;p&gt;There are automatic START/STOP dates that were configured using a different Time Zone setting. Please review these settings in the &lt;b&gt;Advanced Options&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Alcune date automatiche di START/STOP sono state configurate con un altro fuso orario. Verificare queste impostazioni nel menu &lt;b&gt;Opzioni avanzate&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save to preset</source>
        <translation>Salva come preset</translation>
    </message>
    <message>
        <source>Load preset</source>
        <translation>Carica preset</translation>
    </message>
    <message>
        <source>Unable to read from selected file. File is corrupted.</source>
        <translation>Impossibile leggere il file selezionato. Il file è danneggiato.</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>Caricato %1</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for synchronization.
Time Zone will be ignored.</source>
        <translation>Il preset caricato imposta un fuso orario (%1), ma nessun server dell&apos;ora è raggiungibile per la sincronizzazione.
Il fuso orario verrà ignorato.</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Configuration is currently disabled.
Time Zone will be ignored.</source>
        <translation>Il preset caricato imposta un fuso orario (%1), ma la configurazione dell&apos;ora è attualmente disabilitata.
Il fuso orario verrà ignorato.</translation>
    </message>
    <message>
        <source>About Brumalogger Configuration Tool</source>
        <translation>Informazioni su Brumalogger Configuration Tool</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is recommended.&lt;p&gt;&lt;/p&gt;Click Ok to download it.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 è disponibile per il download.&lt;p&gt;&lt;/p&gt;Si consiglia di aggiornare la versione attuale (v%2.%3.%4).&lt;p&gt;&lt;/p&gt;Fare clic su OK per scaricarlo.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>Update Required</source>
        <translation>Aggiornamento obbligatorio</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is mandatory.&lt;p&gt;&lt;/p&gt;This version contains important changes, so the update &lt;font color=&apos;red&apos;&gt;must&lt;/font&gt; be performed.&lt;p&gt;&lt;/p&gt;Click Ok to download it, or Cancel to quit the application.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 è disponibile per il download.&lt;p&gt;&lt;/p&gt;L&apos;aggiornamento della versione attuale (v%2.%3.%4) è obbligatorio.&lt;p&gt;&lt;/p&gt;La nuova versione contiene modifiche importanti, perciò l&apos;aggiornamento &lt;font color=&apos;red&apos;&gt;deve&lt;/font&gt; essere eseguito.&lt;p&gt;&lt;/p&gt;Fare clic su OK per scaricarla o su Annulla per uscire dall&apos;applicazione.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password protected device</source>
        <translation>Dispositivo protetto da password</translation>
    </message>
    <message>
        <source>This device is password protected. Please unlock it to continue:</source>
        <translation>Questo dispositivo è protetto da password. Sbloccarlo per continuare:</translation>
    </message>
    <message>
        <source>Logger Information</source>
        <translation>Informazioni sul registratore</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Mittente:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinatario:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informazioni:</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Altro...</translation>
    </message>
    <message>
        <source>The device is in the IDLE state.
After unlocking, it will be configurable with this tool.</source>
        <translation>Il dispositivo è nello stato IDLE.
Dopo lo sblocco si potrà configurare con questo programma.</translation>
    </message>
    <message>
        <source>The device is in the FINISHED state.
After unlocking, the measurement reports will become available.</source>
        <translation>Il dispositivo è nello stato FINISHED.
Dopo lo sblocco saranno disponibili i rapporti di misura.</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Meno...</translation>
    </message>
    <message>
        <source>Failed while trying to unlock device.</source>
        <translation>Errore durante lo sblocco del dispositivo.</translation>
    </message>
    <message>
        <source>Incorrect password.</source>
        <translation>Password errata.</translation>
    </message>
    <message>
        <source>Unlock device</source>
        <translation>Sblocco del dispositivo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>I/O error when reading %1: %2</source>
        <translation>Errore di I/O durante la lettura di %1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Default Preset</source>
        <translation>Preset predefinito</translation>
    </message>
    <message>
        <source>Enable preset</source>
        <translation>Abilita preset</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Application font size:</source>
        <translation>Dimensione dei caratteri:</translation>
    </message>
    <message>
        <source>Application language:</source>
        <translation>Lingua dell&apos;applicazione:</translation>
    </message>
    <message>
        <source>Device Time Configuration</source>
        <translation>Configurazione dell&apos;ora del dispositivo</translation>
    </message>
    <message>
        <source>Time Server (NTP):</source>
        <translation>Server dell&apos;ora (NTP):</translation>
    </message>
    <message>
        <source>Disable Time Configuration</source>
        <translation>Disabilita la configurazione dell&apos;ora</translation>
    </message>
    <message>
        <source>Enable/disable Time Zone Editor functinality.</source>
        <translation>Abilita/disabilita l&apos;Editor del fuso orario.</translation>
    </message>
    <message>
        <source>Enforce use of time server</source>
        <translation>Imponi l&apos;uso di un server dell&apos;ora</translation>
    </message>
    <message>
        <source>Fetch time reference from time server instead of using local computer time.</source>
        <translation>Ottiene il riferimento orario da un server dell&apos;ora invece di usare l&apos;ora del computer locale.</translation>
    </message>
    <message>
        <source>Use multiple time servers (recommended)</source>
        <translation>Usa più server dell&apos;ora (consigliato)</translation>
    </message>
    <message>
        <source>Fetch time reference from multiple servers. Using single servers is disencouraged, as they may send slightly outdated references.</source>
        <translation>Ottiene il riferimento orario da più server. Si sconsiglia di usare un solo server, che potrebbe inviare riferimenti leggermente in ritardo.</translation>
    </message>
    <message>
        <source>General Device Settings</source>
        <translation>Impostazioni generali del dispositivo</translation>
    </message>
    <message>
        <source>Disable fast Read/Write (recommended for slower computers)</source>
        <translation>Disabilita lettura/scrittura veloce (consigliato per computer lenti)</translation>
    </message>
    <message>
        <source>Disables the standard fast Read/Write. Recommended if the computer is facing issues during Read/Write operations to the device.</source>
        <translation>Disabilita la lettura/scrittura veloce standard. Consigliato se il computer ha problemi durante la lettura o la scrittura del dispositivo.</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Consigliato</translation>
    </message>
    <message>
        <source>Select preset</source>
        <translation>Seleziona preset</translation>
    </message>
</context>
<context>
    <name>TimeZoneDialog</name>
    <message>
        <source>Time Zone Editor</source>
        <translation>Editor del fuso orario</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Riferimento</translation>
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
        <translation>Locale:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Attuale:</translation>
    </message>
    <message>
        <source>Set to:</source>
        <translation>Imposta su:</translation>
    </message>
    <message>
        <source>Updated date/time:</source>
        <translation>Nuova data/ora:</translation>
    </message>
    <message>
        <source> (Time Zone Unknown)</source>
        <translation> (Fuso orario sconosciuto)</translation>
    </message>
    <message>
        <source>This computer&apos;s clock</source>
        <translation>Orologio di questo computer</translation>
    </message>
    <message>
        <source>Server pool</source>
        <translation>Gruppo di server</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Are you sure you want to change the device&apos;s time setting?</source>
        <translation>Modificare davvero l&apos;ora del dispositivo?</translation>
    </message>
</context>
</TS>
