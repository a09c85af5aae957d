<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AdvancedOptionsDialog</name>
    <message>
        <source>Advanced Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;em&gt;Hover the mouse over any item for more information.&lt;/em&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Security</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING RANGE configurations.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Require password for software configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Requires password to perform any configuration via software tool.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not require password to view reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, device will automatically appear as a USB thumb drive containing the reports.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Require password only to access report for the first time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, the device will require the password only &lt;b&gt;once&lt;/b&gt; to generate the reports. The device must be unlocked using this tool. After unlocking, it will &lt;b&gt;always&lt;/b&gt; appear as a USB thumb drive with the reports.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Require password always when accessing reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Upon &lt;span style=&quot; font-weight:600;&quot;&gt;every&lt;/span&gt; USB connection in the DONE state, the device will require the password to display the reports. The device must be unlocked using this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is disconnected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;&amp; Stop Policies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow START via physical button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the START of the device (entering RECORDING mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow START via software tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows the logger to be placed in RECORDING mode via this software tool.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow STOP via physical button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the STOP of the device (entering DONE mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP device immediately when attached to USB port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows a device in the RECORDING state to immediately STOP into the DONE state when attached to an USB port. The &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; is &lt;span style=&quot; font-weight:600;&quot;&gt;not&lt;/span&gt; required.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>START automatically on: -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically START on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP automatically on: -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically STOP on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiuse device options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow device RESET at any time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse logger can be RESET at &lt;span style=&quot; font-weight:600;&quot;&gt;any&lt;/span&gt; time.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow device RESET only after STOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot; font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Changes will take full effect upon disconnecting the Brumalogger from the USB port.&lt;/span&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow device RESET only after reports are generated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot;font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least once.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password may not be larger than %1 characters.
Your input was truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Once a device is password protected, it can only be unlocked with the &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Ensure that the customer receiving the logger can install and use this software before shipping a locked &lt;b&gt;Brumalogger USB&lt;/b&gt;.&lt;br&gt;Furthermore, note that it is &lt;b&gt;not possible&lt;/b&gt; to recover or restore the password of a locked device.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>START automatically on: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOP automatically on: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a START Date and Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a STOP Date and Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty password field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Please specify a password or disable any options requering it.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid START and STOP date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the START date/time. Please check your settings.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid START date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The START date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid STOP date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No START enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid START configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; START option.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No STOP enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid STOP configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; STOP option.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current security configuration is &lt;b&gt;valid&lt;/b&gt;.&lt;br&gt; However, it only allows a RESET after the reports are generated, and &lt;em&gt;report generation&lt;/em&gt; is password protected.&lt;br&gt;Please note that, in such configuration, forgetting the device&apos;s password will render it inoperative and non-resettable.&lt;br&gt;Please store its password properly.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GuideDialog</name>
    <message>
        <source>Quickstart Guide</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Brumalogger Configuration Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Name: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Version: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware Revision:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal ID: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date/time of last reset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date/time on device:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Zone on device:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sampling time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom time (minutes):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start delay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom delay (minutes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operating temperature range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum (°C):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum (°C):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Information (optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(0/60)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tracking Information (optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Barcode on logger:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(0/10)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shipment type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defaut preset    </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all to preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load from preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quickstart guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read data from device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write data to device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load default preset (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced security and startup options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to exit?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;No device found!&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make sure the device is connected and try again.&lt;br&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will be &lt;b&gt;unable&lt;/b&gt; to connect to it.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to device... </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Connected to device, but failed to read it correctly.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected to device on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to disconnect?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid device detected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device is in an invalid state.
No connection can be established. Aborting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect to device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect from device (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetching time and date from server pool...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetching time and date from %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>server pool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully fetched time and date from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to fetch date and time from %1. Check your connections or try another server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as text...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;The device&apos;s battery is LOW.&lt;/span&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please replace the battery immediately.&lt;/span&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please refrain from using this device.&lt;/span&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read from device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading from the device now will erase your changes.
Do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading from device on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading from device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Read procedure failed.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read failed. Please retry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read successful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2°C to 8°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-10°C to -1°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-8°C to -2°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2°C to 25°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>15°C to 25°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>15°C to 30°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-30°C to -15°C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum temperature must be at least
one degree higher than minimum temperature.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting logger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to start the device?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you wish to start the device?
This operation cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software START is disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software START is disabled on this logger.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to start the device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check your START/STOP dates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current settings for the automatic START and/or STOP dates are invalid (probably outdated). Please check the &lt;b&gt;Advanced Options&lt;/b&gt; panel before continuing with the &lt;b&gt;Write&lt;/b&gt; operation.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing to device...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing to device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write procedure canceled by user.
Parameters on device may be in an undefined state.
Executing the procedure again is recommended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;Write procedure failed.&lt;br&gt;Parameters on device may be in an undefined state.
Executing the procedure again is recommended.
If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write successful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write failed. Please retry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating time and date settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing Time Zone setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;There are automatic START/STOP dates that were configured using a different Time Zone setting. Please review these settings in the &lt;b&gt;Advanced Options&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save to preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read from selected file. File is corrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for synchronization.
Time Zone will be ignored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Configuration is currently disabled.
Time Zone will be ignored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Brumalogger Configuration Tool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is recommended.&lt;p&gt;&lt;/p&gt;Click Ok to download it.&lt;/center&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is mandatory.&lt;p&gt;&lt;/p&gt;This version contains important changes, so the update &lt;font color=&apos;red&apos;&gt;must&lt;/font&gt; be performed.&lt;p&gt;&lt;/p&gt;Click Ok to download it, or Cancel to quit the application.&lt;/center&gt;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password protected device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device is password protected. Please unlock it to continue:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logger Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is in the IDLE state.
After unlocking, it will be configurable with this tool.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device is in the FINISHED state.
After unlocking, the measurement reports will become available.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Less...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed while trying to unlock device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incorrect password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock device</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>I/O error when reading %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application font size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device Time Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Server (NTP):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable Time Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable/disable Time Zone Editor functinality.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enforce use of time server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch time reference from time server instead of using local computer time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use multiple time servers (recommended)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch time reference from multiple servers. Using single servers is disencouraged, as they may send slightly outdated references.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Device Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable fast Read/Write (recommended for slower computers)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disables the standard fast Read/Write. Recommended if the computer is facing issues during Read/Write operations to the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select preset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TimeZoneDialog</name>
    <message>
        <source>Time Zone Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTC/GMT:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated date/time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (Time Zone Unknown)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer&apos;s clock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server pool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to change the device&apos;s time setting?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
