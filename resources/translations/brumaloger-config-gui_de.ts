<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AdvancedOptionsDialog</name>
    <message>
        <source>Advanced Options</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;em&gt;Hover the mouse over any item for more information.&lt;/em&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;em&gt;Für weitere Informationen den Mauszeiger über eine Option bewegen.&lt;/em&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Änderungen per Taste sperren</translation>
    </message>
    <message>
        <source>&lt;p&gt;Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING RANGE configurations.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Verhindert, dass MESSINTERVALL und BETRIEBSTEMPERATURBEREICH über die Taste am Gerät geändert werden.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password for software configuration</source>
        <translation>Passwort für Konfiguration per Software verlangen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Requires password to perform any configuration via software tool.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Verlangt das Passwort für jede Konfiguration per Software.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Do not require password to view reports</source>
        <translation>Kein Passwort zum Ansehen der Berichte verlangen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, device will automatically appear as a USB thumb drive containing the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beim Anschließen per USB im Zustand DONE erscheint das Gerät automatisch als USB-Stick mit den Berichten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password only to access report for the first time</source>
        <translation>Passwort nur beim ersten Zugriff auf den Bericht verlangen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, the device will require the password only &lt;b&gt;once&lt;/b&gt; to generate the reports. The device must be unlocked using this tool. After unlocking, it will &lt;b&gt;always&lt;/b&gt; appear as a USB thumb drive with the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Beim Anschließen per USB im Zustand DONE verlangt das Gerät das Passwort nur &lt;b&gt;einmal&lt;/b&gt;, um die Berichte zu erstellen. Das Gerät muss mit dieser Software entsperrt werden. Nach dem Entsperren erscheint es &lt;b&gt;immer&lt;/b&gt; als USB-Stick mit den Berichten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password always when accessing reports</source>
        <translation>Passwort bei jedem Zugriff auf Berichte verlangen</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Upon &lt;span style=&quot; font-weight:600;&quot;&gt;every&lt;/span&gt; USB connection in the DONE state, the device will require the password to display the reports. The device must be unlocked using this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is disconnected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Bei &lt;span style=&quot; font-weight:600;&quot;&gt;jedem&lt;/span&gt; Anschließen per USB im Zustand DONE verlangt das Gerät das Passwort, um die Berichte anzuzeigen. Das Gerät muss mit dieser Software entsperrt werden. Nach dem Entsperren erscheint es als USB-Stick mit den Berichten, bis es getrennt wird.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Start &amp;&amp; Stop Policies</source>
        <translation>Start- und Stoppregeln</translation>
    </message>
    <message>
        <source>Allow START via physical button</source>
        <translation>START über die Taste am Gerät erlauben</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the START of the device (entering RECORDING mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Erlaubt den START des Geräts (Wechsel in den Modus RECORDING) über die &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunktionstaste &lt;/span&gt;(d.&#xa0;h. durch zwei &lt;span style=&quot; font-style:italic;&quot;&gt;Tastendrücke von je 5 Sekunden&lt;/span&gt; oder durch 12 kurze Tastendrücke).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow START via software tool</source>
        <translation>START über die Software erlauben</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows the logger to be placed in RECORDING mode via this software tool.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Erlaubt, den Logger mit dieser Software in den Modus RECORDING zu versetzen.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow STOP via physical button</source>
        <translation>STOP über die Taste am Gerät erlauben</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the STOP of the device (entering DONE mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Erlaubt den STOP des Geräts (Wechsel in den Modus DONE) über die &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunktionstaste &lt;/span&gt;(d.&#xa0;h. durch zwei &lt;span style=&quot; font-style:italic;&quot;&gt;Tastendrücke von je 5 Sekunden&lt;/span&gt; oder durch 12 kurze Tastendrücke).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP device immediately when attached to USB port</source>
        <translation>STOP sofort beim Einstecken in einen USB-Anschluss</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows a device in the RECORDING state to immediately STOP into the DONE state when attached to an USB port. The &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; is &lt;span style=&quot; font-weight:600;&quot;&gt;not&lt;/span&gt; required.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ein Gerät im Zustand RECORDING führt beim Einstecken in einen USB-Anschluss sofort STOP aus und wechselt in den Zustand DONE. Das &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; ist dafür &lt;span style=&quot; font-weight:600;&quot;&gt;nicht&lt;/span&gt; erforderlich.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>START automatically on: -</source>
        <translation>Automatischer START: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically START on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Das Gerät führt zum eingestellten Zeitpunkt automatisch START aus. Es gilt die auf dem Gerät eingestellte Zeitzone.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP automatically on: -</source>
        <translation>Automatischer STOP: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically STOP on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Das Gerät führt zum eingestellten Zeitpunkt automatisch STOP aus. Es gilt die auf dem Gerät eingestellte Zeitzone.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Multiuse device options</source>
        <translation>Optionen für Multiuse-Geräte</translation>
    </message>
    <message>
        <source>Allow device RESET at any time</source>
        <translation>RESET jederzeit erlauben</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse logger can be RESET at &lt;span style=&quot; font-weight:600;&quot;&gt;any&lt;/span&gt; time.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ein Multiuse-Logger kann &lt;span style=&quot; font-weight:600;&quot;&gt;jederzeit&lt;/span&gt; per RESET zurückgesetzt werden.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after STOP</source>
        <translation>RESET nur nach STOP erlauben</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot; font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ein Multiuse-Gerät kann &lt;span style=&quot; font-weight:600;&quot;&gt;nur&lt;/span&gt; im Zustand DONE (d.&#xa0;h. nach dem Ende der Messungen) per RESET zurückgesetzt werden.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Changes will take full effect upon disconnecting the Brumalogger from the USB port.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Die Änderungen werden erst vollständig wirksam, wenn der Brumalogger vom USB-Anschluss getrennt wird.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after reports are generated</source>
        <translation>RESET erst nach Erstellung der Berichte erlauben</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot;font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least once.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ein Multiuse-Gerät kann &lt;span style=&quot;font-weight:600;&quot;&gt;nur&lt;/span&gt; im Zustand DONE (d.&#xa0;h. nach dem Ende der Messungen) per RESET zurückgesetzt werden, nachdem die Berichte mindestens einmal angesehen wurden.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password too long</source>
        <translation>Passwort zu lang</translation>
    </message>
    <message>
        <source>Password may not be larger than %1 characters.
Your input was truncated.</source>
        <translation>Das Passwort darf höchstens %1 Zeichen lang sein.
Ihre Eingabe wurde gekürzt.</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>&lt;p&gt;Once a device is password protected, it can only be unlocked with the &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Ensure that the customer receiving the logger can install and use this software before shipping a locked &lt;b&gt;Brumalogger USB&lt;/b&gt;.&lt;br&gt;Furthermore, note that it is &lt;b&gt;not possible&lt;/b&gt; to recover or restore the password of a locked device.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ist ein Gerät einmal passwortgeschützt, kann es nur mit dem &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt; entsperrt werden.&lt;br&gt;Stellen Sie vor dem Versand eines gesperrten &lt;b&gt;Brumalogger USB&lt;/b&gt; sicher, dass der Kunde, der den Logger erhält, diese Software installieren und verwenden kann.&lt;br&gt;Beachten Sie außerdem, dass es &lt;b&gt;nicht möglich&lt;/b&gt; ist, das Passwort eines gesperrten Geräts auszulesen oder wiederherzustellen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>START automatically on: </source>
        <translation>Automatischer START: </translation>
    </message>
    <message>
        <source>STOP automatically on: </source>
        <translation>Automatischer STOP: </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Select a START Date and Time</source>
        <translation>START-Datum und -Uhrzeit wählen</translation>
    </message>
    <message>
        <source>Select a STOP Date and Time</source>
        <translation>STOP-Datum und -Uhrzeit wählen</translation>
    </message>
    <message>
        <source>Empty password field</source>
        <translation>Passwortfeld leer</translation>
    </message>
    <message>
        <source>&lt;p&gt;Please specify a password or disable any options requering it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Bitte geben Sie ein Passwort ein oder deaktivieren Sie alle Optionen, die eines erfordern.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START and STOP date</source>
        <translation>START- und STOP-Datum ungültig</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the START date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der STOP-Zeitpunkt muss mindestens %1 Minuten nach dem START-Zeitpunkt liegen. Bitte prüfen Sie Ihre Einstellungen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START date</source>
        <translation>START-Datum ungültig</translation>
    </message>
    <message>
        <source>&lt;p&gt;The START date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der START-Zeitpunkt muss mindestens %1 Minuten nach dem aktuellen Zeitpunkt liegen. Bitte prüfen Sie Ihre Einstellungen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid STOP date</source>
        <translation>STOP-Datum ungültig</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Der STOP-Zeitpunkt muss mindestens %1 Minuten nach dem aktuellen Zeitpunkt liegen. Bitte prüfen Sie Ihre Einstellungen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No START enabled</source>
        <translation>Kein START aktiviert</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid START configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; START option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Es ist keine gültige START-Konfiguration aktiviert.&lt;br&gt;Bitte aktivieren Sie mindestens &lt;b&gt;eine&lt;/b&gt; START-Option.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No STOP enabled</source>
        <translation>Kein STOP aktiviert</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid STOP configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; STOP option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Es ist keine gültige STOP-Konfiguration aktiviert.&lt;br&gt;Bitte aktivieren Sie mindestens &lt;b&gt;eine&lt;/b&gt; STOP-Option.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current security configuration is &lt;b&gt;valid&lt;/b&gt;.&lt;br&gt; However, it only allows a RESET after the reports are generated, and &lt;em&gt;report generation&lt;/em&gt; is password protected.&lt;br&gt;Please note that, in such configuration, forgetting the device&apos;s password will render it inoperative and non-resettable.&lt;br&gt;Please store its password properly.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ihre aktuelle Sicherheitskonfiguration ist &lt;b&gt;gültig&lt;/b&gt;.&lt;br&gt; Sie erlaubt einen RESET jedoch erst nach Erstellung der Berichte, und die &lt;em&gt;Erstellung der Berichte&lt;/em&gt; ist passwortgeschützt.&lt;br&gt;Bitte beachten Sie: Wird bei dieser Konfiguration das Passwort des Geräts vergessen, ist das Gerät unbrauchbar, und ein RESET ist nicht mehr möglich.&lt;br&gt;Bitte bewahren Sie das Passwort sorgfältig auf.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>GuideDialog</name>
    <message>
        <source>Quickstart Guide</source>
        <translation>Schnellstartanleitung</translation>
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
        <translation>Geräteinformationen</translation>
    </message>
    <message>
        <source>Device Name: </source>
        <translation>Gerätename: </translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Firmware Version: </source>
        <translation>Firmware-Version: </translation>
    </message>
    <message>
        <source>Hardware Revision:</source>
        <translation>Hardware-Revision:</translation>
    </message>
    <message>
        <source>Internal ID: </source>
        <translation>Interne ID: </translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Date/time of last reset:</source>
        <translation>Datum/Uhrzeit des letzten RESET:</translation>
    </message>
    <message>
        <source>Date/time on device:</source>
        <translation>Datum/Uhrzeit des Geräts:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Time Zone on device:</source>
        <translation>Zeitzone des Geräts:</translation>
    </message>
    <message>
        <source>Device Setup</source>
        <translation>Geräteeinrichtung</translation>
    </message>
    <message>
        <source>Sampling time</source>
        <translation>Messintervall</translation>
    </message>
    <message>
        <source>Custom time (minutes):</source>
        <translation>Eigenes Intervall (Minuten):</translation>
    </message>
    <message>
        <source>Start delay</source>
        <translation>Startverzögerung</translation>
    </message>
    <message>
        <source>Custom delay (minutes)</source>
        <translation>Eigene Verzögerung (Minuten)</translation>
    </message>
    <message>
        <source>Operating temperature range</source>
        <translation>Betriebstemperaturbereich</translation>
    </message>
    <message>
        <source>Minimum (°C):</source>
        <translation>Minimum (°C):</translation>
    </message>
    <message>
        <source>Maximum (°C):</source>
        <translation>Maximum (°C):</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Änderungen per Taste sperren</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Erweiterte Optionen</translation>
    </message>
    <message>
        <source>Report Information (optional)</source>
        <translation>Berichtsangaben (optional)</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Absender:</translation>
    </message>
    <message>
        <source>(0/60)</source>
        <translation>(0/60)</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informationen:</translation>
    </message>
    <message>
        <source>Tracking Information (optional)</source>
        <translation>Sendungsverfolgung (optional)</translation>
    </message>
    <message>
        <source>Barcode on logger:</source>
        <translation>Barcode auf dem Logger:</translation>
    </message>
    <message>
        <source>(0/10)</source>
        <translation>(0/10)</translation>
    </message>
    <message>
        <source>Shipment type:</source>
        <translation>Versandart:</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Defaut preset    </source>
        <translation>Standardvorlage    </translation>
    </message>
    <message>
        <source>Start  </source>
        <translation>Starten  </translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Save all to preset</source>
        <translation>Alles als Vorlage speichern</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Load from preset</source>
        <translation>Aus Vorlage laden</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Online help</source>
        <translation>Online-Hilfe</translation>
    </message>
    <message>
        <source>Quickstart guide</source>
        <translation>Schnellstartanleitung</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Read data from device (%1)</source>
        <translation>Daten vom Gerät lesen (%1)</translation>
    </message>
    <message>
        <source>Write data to device (%1)</source>
        <translation>Daten auf das Gerät schreiben (%1)</translation>
    </message>
    <message>
        <source>Start device (%1)</source>
        <translation>Gerät starten (%1)</translation>
    </message>
    <message>
        <source>Load default preset (%1)</source>
        <translation>Standardvorlage laden (%1)</translation>
    </message>
    <message>
        <source>Advanced security and startup options</source>
        <translation>Erweiterte Sicherheits- und Startoptionen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to exit?</source>
        <translation>Es gibt Änderungen, die nicht auf das Gerät geschrieben wurden.
Möchten Sie das Programm wirklich beenden?</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>&lt;p&gt;No device found!&lt;br&gt;</source>
        <translation>&lt;p&gt;Kein Gerät gefunden!&lt;br&gt;</translation>
    </message>
    <message>
        <source>Make sure the device is connected and try again.&lt;br&gt;</source>
        <translation>Vergewissern Sie sich, dass das Gerät angeschlossen ist, und versuchen Sie es erneut.&lt;br&gt;</translation>
    </message>
    <message>
        <source>If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will be &lt;b&gt;unable&lt;/b&gt; to connect to it.&lt;/p&gt;</source>
        <translation>Wenn Ihr Brumalogger USB bereits als USB-Stick angeschlossen ist, kann diese Software &lt;b&gt;keine&lt;/b&gt; Verbindung zu ihm herstellen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connecting to device... </source>
        <translation>Verbindung zum Gerät wird hergestellt... </translation>
    </message>
    <message>
        <source>&lt;p&gt;Connected to device, but failed to read it correctly.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Mit dem Gerät verbunden, aber das Lesen ist fehlgeschlagen.&lt;br&gt;Bitte wiederholen Sie das Lesen.&lt;br&gt;Wenn das Problem weiterhin besteht, wählen Sie &lt;b&gt;Schnelles Lesen/Schreiben deaktivieren&lt;/b&gt; im Menü &lt;b&gt;Einstellungen&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connected to device on %1</source>
        <translation>Verbunden mit Gerät an %1</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Verbindung trennen</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to disconnect?</source>
        <translation>Es gibt Änderungen, die nicht auf das Gerät geschrieben wurden.
Möchten Sie die Verbindung wirklich trennen?</translation>
    </message>
    <message>
        <source>Disconnected from %1</source>
        <translation>Getrennt von %1</translation>
    </message>
    <message>
        <source>Invalid device detected.</source>
        <translation>Ungültiges Gerät erkannt.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>This device is in an invalid state.
No connection can be established. Aborting.</source>
        <translation>Dieses Gerät befindet sich in einem ungültigen Zustand.
Es kann keine Verbindung hergestellt werden. Vorgang abgebrochen.</translation>
    </message>
    <message>
        <source>Connect to device (%1)</source>
        <translation>Mit Gerät verbinden (%1)</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Disconnect from device (%1)</source>
        <translation>Vom Gerät trennen (%1)</translation>
    </message>
    <message>
        <source>Fetching time and date from server pool...</source>
        <translation>Datum und Uhrzeit werden vom Serverpool abgerufen...</translation>
    </message>
    <message>
        <source>Fetching time and date from %1...</source>
        <translation>Datum und Uhrzeit werden von %1 abgerufen...</translation>
    </message>
    <message>
        <source>server pool</source>
        <translation>dem Serverpool</translation>
    </message>
    <message>
        <source>Successfully fetched time and date from %1.</source>
        <translation>Datum und Uhrzeit erfolgreich von %1 abgerufen.</translation>
    </message>
    <message>
        <source>Unable to fetch date and time from %1. Check your connections or try another server.</source>
        <translation>Datum und Uhrzeit von %1 nicht erhalten. Verbindungen prüfen oder anderen Server versuchen.</translation>
    </message>
    <message>
        <source>Copy as text...</source>
        <translation>Als Text kopieren...</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;The device&apos;s battery is LOW.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;Die Batterie des Geräts ist SCHWACH.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please replace the battery immediately.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Bitte ersetzen Sie die Batterie umgehend.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please refrain from using this device.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Bitte verwenden Sie dieses Gerät nicht.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read from device</source>
        <translation>Vom Gerät lesen</translation>
    </message>
    <message>
        <source>Reading from the device now will erase your changes.
Do you wish to proceed?</source>
        <translation>Wenn Sie jetzt vom Gerät lesen, gehen Ihre Änderungen verloren.
Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Reading from device on %1</source>
        <translation>Lesen vom Gerät an %1</translation>
    </message>
    <message>
        <source>Reading from device</source>
        <translation>Lesen vom Gerät</translation>
    </message>
    <message>
        <source>&lt;p&gt;Read procedure failed.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Das Lesen ist fehlgeschlagen.&lt;br&gt;Bitte wiederholen Sie das Lesen.&lt;br&gt;Wenn das Problem weiterhin besteht, wählen Sie &lt;b&gt;Schnelles Lesen/Schreiben deaktivieren&lt;/b&gt; im Menü &lt;b&gt;Einstellungen&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read failed. Please retry.</source>
        <translation>Lesen fehlgeschlagen. Bitte erneut versuchen.</translation>
    </message>
    <message>
        <source>Read successful</source>
        <translation>Lesen erfolgreich</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 Minuten</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 Minuten</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation>2 Stunden</translation>
    </message>
    <message>
        <source>3 hours</source>
        <translation>3 Stunden</translation>
    </message>
    <message>
        <source>4 hours</source>
        <translation>4 Stunden</translation>
    </message>
    <message>
        <source>2°C to 8°C</source>
        <translation>2&#xa0;°C bis 8&#xa0;°C</translation>
    </message>
    <message>
        <source>-10°C to -1°C</source>
        <translation>-10&#xa0;°C bis -1&#xa0;°C</translation>
    </message>
    <message>
        <source>-8°C to -2°C</source>
        <translation>-8&#xa0;°C bis -2&#xa0;°C</translation>
    </message>
    <message>
        <source>2°C to 25°C</source>
        <translation>2&#xa0;°C bis 25&#xa0;°C</translation>
    </message>
    <message>
        <source>15°C to 25°C</source>
        <translation>15&#xa0;°C bis 25&#xa0;°C</translation>
    </message>
    <message>
        <source>15°C to 30°C</source>
        <translation>15&#xa0;°C bis 30&#xa0;°C</translation>
    </message>
    <message>
        <source>-30°C to -15°C</source>
        <translation>-30&#xa0;°C bis -15&#xa0;°C</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener Wert</translation>
    </message>
    <message>
        <source>Maximum temperature must be at least
one degree higher than minimum temperature.</source>
        <translation>Die Maximaltemperatur muss mindestens
ein Grad über der Minimaltemperatur liegen.</translation>
    </message>
    <message>
        <source>Starting logger</source>
        <translation>Logger starten</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to start the device?</source>
        <translation>Es gibt Änderungen, die nicht auf das Gerät geschrieben wurden.
Möchten Sie das Gerät wirklich starten?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>Do you wish to start the device?
This operation cannot be undone.</source>
        <translation>Möchten Sie das Gerät starten?
Dieser Vorgang kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Software START is disabled</source>
        <translation>START über die Software deaktiviert</translation>
    </message>
    <message>
        <source>Software START is disabled on this logger.</source>
        <translation>START über die Software ist bei diesem Logger deaktiviert.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to start the device</source>
        <translation>Das Gerät konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Check your START/STOP dates</source>
        <translation>START-/STOP-Datum prüfen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current settings for the automatic START and/or STOP dates are invalid (probably outdated). Please check the &lt;b&gt;Advanced Options&lt;/b&gt; panel before continuing with the &lt;b&gt;Write&lt;/b&gt; operation.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ihre aktuellen Einstellungen für das automatische START- und/oder STOP-Datum sind ungültig (vermutlich veraltet). Bitte prüfen Sie den Bereich &lt;b&gt;Erweiterte Optionen&lt;/b&gt;, bevor Sie mit dem &lt;b&gt;Schreiben&lt;/b&gt; fortfahren.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Writing to device...</source>
        <translation>Schreiben auf das Gerät...</translation>
    </message>
    <message>
        <source>Writing to device</source>
        <translation>Schreiben auf das Gerät</translation>
    </message>
    <message>
        <source>Write procedure canceled by user.
Parameters on device may be in an undefined state.
Executing the procedure again is recommended.</source>
        <translation>Schreiben vom Benutzer abgebrochen.
Die Parameter des Geräts sind möglicherweise in einem undefinierten Zustand.
Es wird empfohlen, den Vorgang zu wiederholen.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Write procedure failed.&lt;br&gt;Parameters on device may be in an undefined state.
Executing the procedure again is recommended.
If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Das Schreiben ist fehlgeschlagen.&lt;br&gt;Die Parameter des Geräts sind möglicherweise in einem undefinierten Zustand.
Es wird empfohlen, den Vorgang zu wiederholen.
Wenn das Problem weiterhin besteht, wählen Sie &lt;b&gt;Schnelles Lesen/Schreiben deaktivieren&lt;/b&gt; im Menü &lt;b&gt;Einstellungen&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Write successful</source>
        <translation>Schreiben erfolgreich</translation>
    </message>
    <message>
        <source>Write failed. Please retry</source>
        <translation>Schreiben fehlgeschlagen. Bitte erneut versuchen</translation>
    </message>
    <message>
        <source>Updating time and date settings.</source>
        <translation>Datum und Uhrzeit werden aktualisiert.</translation>
    </message>
    <message>
        <source>Changing Time Zone setting</source>
        <translation>Änderung der Zeitzone</translation>
    </message>
    <message>
        <source>&lt;p&gt;There are automatic START/STOP dates that were configured using a different Time Zone setting. Please review these settings in the &lt;b&gt;Advanced Options&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Das automatische START- und/oder STOP-Datum wurde mit einer anderen Zeitzone eingestellt. Bitte prüfen Sie diese Einstellungen im Menü &lt;b&gt;Erweiterte Optionen&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save to preset</source>
        <translation>Als Vorlage speichern</translation>
    </message>
    <message>
        <source>Load preset</source>
        <translation>Vorlage laden</translation>
    </message>
    <message>
        <source>Unable to read from selected file. File is corrupted.</source>
        <translation>Die ausgewählte Datei kann nicht gelesen werden. Sie ist beschädigt.</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>%1 geladen</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for synchronization.
Time Zone will be ignored.</source>
        <translation>Die geladene Vorlage legt eine Zeitzone (%1) fest, aber für die Synchronisierung ist kein Zeitserver erreichbar.
Die Zeitzone wird ignoriert.</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Configuration is currently disabled.
Time Zone will be ignored.</source>
        <translation>Die geladene Vorlage legt eine Zeitzone (%1) fest, aber die Zeitkonfiguration ist derzeit deaktiviert.
Die Zeitzone wird ignoriert.</translation>
    </message>
    <message>
        <source>About Brumalogger Configuration Tool</source>
        <translation>Info zum Brumalogger Configuration Tool</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is recommended.&lt;p&gt;&lt;/p&gt;Click Ok to download it.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 steht zum Download bereit.&lt;p&gt;&lt;/p&gt;Das Update Ihrer aktuellen Version (v%2.%3.%4) wird empfohlen.&lt;p&gt;&lt;/p&gt;Klicken Sie auf OK, um es herunterzuladen.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>Update Required</source>
        <translation>Update erforderlich</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is mandatory.&lt;p&gt;&lt;/p&gt;This version contains important changes, so the update &lt;font color=&apos;red&apos;&gt;must&lt;/font&gt; be performed.&lt;p&gt;&lt;/p&gt;Click Ok to download it, or Cancel to quit the application.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 steht zum Download bereit.&lt;p&gt;&lt;/p&gt;Das Update Ihrer aktuellen Version (v%2.%3.%4) ist zwingend erforderlich.&lt;p&gt;&lt;/p&gt;Diese Version enthält wichtige Änderungen, daher &lt;font color=&apos;red&apos;&gt;muss&lt;/font&gt; das Update durchgeführt werden.&lt;p&gt;&lt;/p&gt;Klicken Sie auf OK, um es herunterzuladen, oder auf Abbrechen, um die Anwendung zu beenden.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password protected device</source>
        <translation>Passwortgeschütztes Gerät</translation>
    </message>
    <message>
        <source>This device is password protected. Please unlock it to continue:</source>
        <translation>Dieses Gerät ist passwortgeschützt. Bitte entsperren Sie es, um fortzufahren:</translation>
    </message>
    <message>
        <source>Logger Information</source>
        <translation>Logger-Informationen</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Absender:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informationen:</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Mehr...</translation>
    </message>
    <message>
        <source>The device is in the IDLE state.
After unlocking, it will be configurable with this tool.</source>
        <translation>Das Gerät befindet sich im Zustand IDLE.
Nach dem Entsperren kann es mit dieser Software konfiguriert werden.</translation>
    </message>
    <message>
        <source>The device is in the FINISHED state.
After unlocking, the measurement reports will become available.</source>
        <translation>Das Gerät befindet sich im Zustand FINISHED.
Nach dem Entsperren sind die Messberichte verfügbar.</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Weniger...</translation>
    </message>
    <message>
        <source>Failed while trying to unlock device.</source>
        <translation>Fehler beim Entsperren des Geräts.</translation>
    </message>
    <message>
        <source>Incorrect password.</source>
        <translation>Falsches Passwort.</translation>
    </message>
    <message>
        <source>Unlock device</source>
        <translation>Gerät entsperren</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>I/O error when reading %1: %2</source>
        <translation>E/A-Fehler beim Lesen von %1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Default Preset</source>
        <translation>Standardvorlage</translation>
    </message>
    <message>
        <source>Enable preset</source>
        <translation>Vorlage aktivieren</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Application font size:</source>
        <translation>Schriftgröße der Anwendung:</translation>
    </message>
    <message>
        <source>Application language:</source>
        <translation>Sprache der Anwendung:</translation>
    </message>
    <message>
        <source>Device Time Configuration</source>
        <translation>Zeitkonfiguration des Geräts</translation>
    </message>
    <message>
        <source>Time Server (NTP):</source>
        <translation>Zeitserver (NTP):</translation>
    </message>
    <message>
        <source>Disable Time Configuration</source>
        <translation>Zeitkonfiguration deaktivieren</translation>
    </message>
    <message>
        <source>Enable/disable Time Zone Editor functinality.</source>
        <translation>Zeitzonen-Editor aktivieren/deaktivieren.</translation>
    </message>
    <message>
        <source>Enforce use of time server</source>
        <translation>Zeitserver zwingend verwenden</translation>
    </message>
    <message>
        <source>Fetch time reference from time server instead of using local computer time.</source>
        <translation>Zeitreferenz vom Zeitserver abrufen, statt die Uhr des Computers zu verwenden.</translation>
    </message>
    <message>
        <source>Use multiple time servers (recommended)</source>
        <translation>Mehrere Zeitserver verwenden (empfohlen)</translation>
    </message>
    <message>
        <source>Fetch time reference from multiple servers. Using single servers is disencouraged, as they may send slightly outdated references.</source>
        <translation>Zeitreferenz von mehreren Servern abrufen. Von einzelnen Servern wird abgeraten, da ihre Zeitreferenzen leicht veraltet sein können.</translation>
    </message>
    <message>
        <source>General Device Settings</source>
        <translation>Allgemeine Geräteeinstellungen</translation>
    </message>
    <message>
        <source>Disable fast Read/Write (recommended for slower computers)</source>
        <translation>Schnelles Lesen/Schreiben deaktivieren (empfohlen für langsame Computer)</translation>
    </message>
    <message>
        <source>Disables the standard fast Read/Write. Recommended if the computer is facing issues during Read/Write operations to the device.</source>
        <translation>Deaktiviert das standardmäßige schnelle Lesen/Schreiben. Empfohlen, wenn der Computer beim Lesen vom Gerät oder beim Schreiben auf das Gerät Probleme hat.</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Empfohlen</translation>
    </message>
    <message>
        <source>Select preset</source>
        <translation>Vorlage auswählen</translation>
    </message>
</context>
<context>
    <name>TimeZoneDialog</name>
    <message>
        <source>Time Zone Editor</source>
        <translation>Zeitzonen-Editor</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>UTC/GMT:</source>
        <translation>UTC/GMT:</translation>
    </message>
    <message>
        <source>Local:</source>
        <translation>Lokal:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Aktuell:</translation>
    </message>
    <message>
        <source>Set to:</source>
        <translation>Einstellen auf:</translation>
    </message>
    <message>
        <source>Updated date/time:</source>
        <translation>Datum/Uhrzeit neu:</translation>
    </message>
    <message>
        <source> (Time Zone Unknown)</source>
        <translation> (Zeitzone unbekannt)</translation>
    </message>
    <message>
        <source>This computer&apos;s clock</source>
        <translation>Uhr dieses Computers</translation>
    </message>
    <message>
        <source>Server pool</source>
        <translation>Serverpool</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Are you sure you want to change the device&apos;s time setting?</source>
        <translation>Möchten Sie die Uhrzeit des Geräts wirklich ändern?</translation>
    </message>
</context>
</TS>
