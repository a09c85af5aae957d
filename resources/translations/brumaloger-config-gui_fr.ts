<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AdvancedOptionsDialog</name>
    <message>
        <source>Advanced Options</source>
        <translation>Options avancées</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;em&gt;Hover the mouse over any item for more information.&lt;/em&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;em&gt;Passez la souris sur un élément pour plus d&apos;informations.&lt;/em&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Désactiver les changements par bouton</translation>
    </message>
    <message>
        <source>&lt;p&gt;Prevent physical button from changing SAMPLE TIME and TEMPERATURE MONITORING RANGE configurations.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Empêche de modifier l&apos;INTERVALLE DE MESURE et la PLAGE DE TEMPÉRATURE avec le bouton physique.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password for software configuration</source>
        <translation>Exiger le mot de passe pour configurer par le logiciel</translation>
    </message>
    <message>
        <source>&lt;p&gt;Requires password to perform any configuration via software tool.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Exige le mot de passe pour toute configuration par le logiciel.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Do not require password to view reports</source>
        <translation>Ne pas exiger de mot de passe pour voir les rapports</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, device will automatically appear as a USB thumb drive containing the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Lors d&apos;une connexion USB à l&apos;état DONE, l&apos;appareil apparaît automatiquement comme une clé USB contenant les rapports.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password only to access report for the first time</source>
        <translation>Exiger le mot de passe seulement au premier accès au rapport</translation>
    </message>
    <message>
        <source>&lt;p&gt;Upon USB connection in the DONE state, the device will require the password only &lt;b&gt;once&lt;/b&gt; to generate the reports. The device must be unlocked using this tool. After unlocking, it will &lt;b&gt;always&lt;/b&gt; appear as a USB thumb drive with the reports.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Lors d&apos;une connexion USB à l&apos;état DONE, l&apos;appareil n&apos;exige le mot de passe qu&apos;&lt;b&gt;une seule fois&lt;/b&gt;, pour créer les rapports. L&apos;appareil doit être déverrouillé avec ce logiciel. Une fois déverrouillé, il apparaît &lt;b&gt;toujours&lt;/b&gt; comme une clé USB contenant les rapports.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Require password always when accessing reports</source>
        <translation>Toujours exiger le mot de passe pour accéder aux rapports</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Upon &lt;span style=&quot; font-weight:600;&quot;&gt;every&lt;/span&gt; USB connection in the DONE state, the device will require the password to display the reports. The device must be unlocked using this tool. After unlocking, it will appear as a USB thumb drive with the reports until it is disconnected.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;À &lt;span style=&quot; font-weight:600;&quot;&gt;chaque&lt;/span&gt; connexion USB à l&apos;état DONE, l&apos;appareil exige le mot de passe pour afficher les rapports. L&apos;appareil doit être déverrouillé avec ce logiciel. Une fois déverrouillé, il apparaît comme une clé USB contenant les rapports jusqu&apos;à ce qu&apos;il soit débranché.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Start &amp;&amp; Stop Policies</source>
        <translation>Règles de démarrage et d&apos;arrêt</translation>
    </message>
    <message>
        <source>Allow START via physical button</source>
        <translation>Autoriser START par le bouton physique</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the START of the device (entering RECORDING mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Autorise le START de l&apos;appareil (passage en mode RECORDING) avec le &lt;span style=&quot; font-weight:600;&quot;&gt;bouton multifonction &lt;/span&gt;(par deux &lt;span style=&quot; font-style:italic;&quot;&gt;clics de 5 secondes&lt;/span&gt; ou par 12 clics courts).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow START via software tool</source>
        <translation>Autoriser START par le logiciel</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows the logger to be placed in RECORDING mode via this software tool.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Autorise le passage de l&apos;enregistreur en mode RECORDING avec ce logiciel.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow STOP via physical button</source>
        <translation>Autoriser STOP par le bouton physique</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allow the STOP of the device (entering DONE mode) via the &lt;span style=&quot; font-weight:600;&quot;&gt;Multifunction Button &lt;/span&gt;(i.e., via two &lt;span style=&quot; font-style:italic;&quot;&gt;5 second clicks&lt;/span&gt;, or via 12 short clicks).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Autorise le STOP de l&apos;appareil (passage en mode DONE) avec le &lt;span style=&quot; font-weight:600;&quot;&gt;bouton multifonction &lt;/span&gt;(par deux &lt;span style=&quot; font-style:italic;&quot;&gt;clics de 5 secondes&lt;/span&gt; ou par 12 clics courts).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP device immediately when attached to USB port</source>
        <translation>STOP immédiat dès le branchement à un port USB</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Allows a device in the RECORDING state to immediately STOP into the DONE state when attached to an USB port. The &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; is &lt;span style=&quot; font-weight:600;&quot;&gt;not&lt;/span&gt; required.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Permet à un appareil à l&apos;état RECORDING d&apos;exécuter STOP et de passer à l&apos;état DONE dès qu&apos;il est branché à un port USB. &lt;span style=&quot; font-style:italic;&quot;&gt;Brumalogger Configuration Tool&lt;/span&gt; n&apos;est &lt;span style=&quot; font-weight:600;&quot;&gt;pas&lt;/span&gt; nécessaire.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>START automatically on: -</source>
        <translation>START automatique le&#xa0;: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically START on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;L&apos;appareil exécute START automatiquement à la date définie. Le fuseau horaire est celui qui est configuré sur l&apos;appareil.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>STOP automatically on: -</source>
        <translation>STOP automatique le&#xa0;: -</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Device will automatically STOP on set date. Time zone is the same as configured on the device.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;L&apos;appareil exécute STOP automatiquement à la date définie. Le fuseau horaire est celui qui est configuré sur l&apos;appareil.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Multiuse device options</source>
        <translation>Options des appareils Multiuse</translation>
    </message>
    <message>
        <source>Allow device RESET at any time</source>
        <translation>Autoriser RESET à tout moment</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse logger can be RESET at &lt;span style=&quot; font-weight:600;&quot;&gt;any&lt;/span&gt; time.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Le RESET d&apos;un enregistreur Multiuse est possible à &lt;span style=&quot; font-weight:600;&quot;&gt;tout&lt;/span&gt; moment.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after STOP</source>
        <translation>Autoriser RESET seulement après STOP</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot; font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Le RESET d&apos;un appareil Multiuse est possible &lt;span style=&quot; font-weight:600;&quot;&gt;seulement&lt;/span&gt; à l&apos;état DONE (c&apos;est-à-dire après l&apos;arrêt des mesures).&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Changes will take full effect upon disconnecting the Brumalogger from the USB port.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600;&quot;&gt;Les changements prendront pleinement effet une fois le Brumalogger débranché du port USB.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Allow device RESET only after reports are generated</source>
        <translation>Autoriser RESET seulement après la création des rapports</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;A Multiuse device can be RESET &lt;span style=&quot;font-weight:600;&quot;&gt;only&lt;/span&gt; in the DONE state (i.e., after measurements have been stopped) after viewing the reports at least once.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Le RESET d&apos;un appareil Multiuse est possible &lt;span style=&quot;font-weight:600;&quot;&gt;seulement&lt;/span&gt; à l&apos;état DONE (c&apos;est-à-dire après l&apos;arrêt des mesures) et après au moins une consultation des rapports.&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Password too long</source>
        <translation>Mot de passe trop long</translation>
    </message>
    <message>
        <source>Password may not be larger than %1 characters.
Your input was truncated.</source>
        <translation>Le mot de passe ne peut pas dépasser %1 caractères.
Votre saisie a été tronquée.</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>&lt;p&gt;Once a device is password protected, it can only be unlocked with the &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Ensure that the customer receiving the logger can install and use this software before shipping a locked &lt;b&gt;Brumalogger USB&lt;/b&gt;.&lt;br&gt;Furthermore, note that it is &lt;b&gt;not possible&lt;/b&gt; to recover or restore the password of a locked device.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Un appareil protégé par mot de passe ne peut être déverrouillé qu&apos;avec &lt;b&gt;Brumalogger Configuration Tool&lt;/b&gt;.&lt;br&gt;Avant d&apos;expédier un &lt;b&gt;Brumalogger USB&lt;/b&gt; verrouillé, assurez-vous que le client qui reçoit l&apos;enregistreur peut installer et utiliser ce logiciel.&lt;br&gt;Notez aussi qu&apos;il est &lt;b&gt;impossible&lt;/b&gt; de récupérer ou de rétablir le mot de passe d&apos;un appareil verrouillé.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>START automatically on: </source>
        <translation>START automatique le&#xa0;: </translation>
    </message>
    <message>
        <source>STOP automatically on: </source>
        <translation>STOP automatique le&#xa0;: </translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Select a START Date and Time</source>
        <translation>Sélectionner la date et l&apos;heure de START</translation>
    </message>
    <message>
        <source>Select a STOP Date and Time</source>
        <translation>Sélectionner la date et l&apos;heure de STOP</translation>
    </message>
    <message>
        <source>Empty password field</source>
        <translation>Champ de mot de passe vide</translation>
    </message>
    <message>
        <source>&lt;p&gt;Please specify a password or disable any options requering it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veuillez indiquer un mot de passe ou désactiver toutes les options qui l&apos;exigent.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START and STOP date</source>
        <translation>Dates de START et de STOP non valides</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the START date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La date/heure de STOP doit être postérieure d&apos;au moins %1 minutes à la date/heure de START. Veuillez vérifier vos paramètres.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid START date</source>
        <translation>Date de START non valide</translation>
    </message>
    <message>
        <source>&lt;p&gt;The START date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La date/heure de START doit être postérieure d&apos;au moins %1 minutes à la date/heure actuelle. Veuillez vérifier vos paramètres.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Invalid STOP date</source>
        <translation>Date de STOP non valide</translation>
    </message>
    <message>
        <source>&lt;p&gt;The STOP date/time must be at least %1 minutes after the current date/time. Please check your settings.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La date/heure de STOP doit être postérieure d&apos;au moins %1 minutes à la date/heure actuelle. Veuillez vérifier vos paramètres.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No START enabled</source>
        <translation>Aucun START activé</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid START configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; START option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Aucune configuration de START valide n&apos;est activée.&lt;br&gt;Veuillez activer au moins &lt;b&gt;une&lt;/b&gt; option de START.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>No STOP enabled</source>
        <translation>Aucun STOP activé</translation>
    </message>
    <message>
        <source>&lt;p&gt;No valid STOP configuration enabled.&lt;br&gt;Please enable at least &lt;b&gt;one&lt;/b&gt; STOP option.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Aucune configuration de STOP valide n&apos;est activée.&lt;br&gt;Veuillez activer au moins &lt;b&gt;une&lt;/b&gt; option de STOP.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current security configuration is &lt;b&gt;valid&lt;/b&gt;.&lt;br&gt; However, it only allows a RESET after the reports are generated, and &lt;em&gt;report generation&lt;/em&gt; is password protected.&lt;br&gt;Please note that, in such configuration, forgetting the device&apos;s password will render it inoperative and non-resettable.&lt;br&gt;Please store its password properly.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Votre configuration de sécurité actuelle est &lt;b&gt;valide&lt;/b&gt;.&lt;br&gt; Cependant, elle n&apos;autorise un RESET qu&apos;après la création des rapports, et la &lt;em&gt;création des rapports&lt;/em&gt; est protégée par mot de passe.&lt;br&gt;Notez que, dans cette configuration, l&apos;oubli du mot de passe rend l&apos;appareil inutilisable, sans RESET possible.&lt;br&gt;Veuillez conserver le mot de passe en lieu sûr.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>GuideDialog</name>
    <message>
        <source>Quickstart Guide</source>
        <translation>Guide de démarrage rapide</translation>
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
        <translation>Informations sur l&apos;appareil</translation>
    </message>
    <message>
        <source>Device Name: </source>
        <translation>Nom de l&apos;appareil&#xa0;: </translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Firmware Version: </source>
        <translation>Version du firmware&#xa0;: </translation>
    </message>
    <message>
        <source>Hardware Revision:</source>
        <translation>Révision du matériel&#xa0;:</translation>
    </message>
    <message>
        <source>Internal ID: </source>
        <translation>ID interne&#xa0;: </translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Date/time of last reset:</source>
        <translation>Date/heure du dernier RESET&#xa0;:</translation>
    </message>
    <message>
        <source>Date/time on device:</source>
        <translation>Date/heure de l&apos;appareil&#xa0;:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Time Zone on device:</source>
        <translation>Fuseau horaire de l&apos;appareil&#xa0;:</translation>
    </message>
    <message>
        <source>Device Setup</source>
        <translation>Configuration de l&apos;appareil</translation>
    </message>
    <message>
        <source>Sampling time</source>
        <translation>Intervalle de mesure</translation>
    </message>
    <message>
        <source>Custom time (minutes):</source>
        <translation>Intervalle personnalisé (min)&#xa0;:</translation>
    </message>
    <message>
        <source>Start delay</source>
        <translation>Délai de démarrage</translation>
    </message>
    <message>
        <source>Custom delay (minutes)</source>
        <translation>Délai personnalisé (min)</translation>
    </message>
    <message>
        <source>Operating temperature range</source>
        <translation>Plage de température</translation>
    </message>
    <message>
        <source>Minimum (°C):</source>
        <translation>Minimum (°C)&#xa0;:</translation>
    </message>
    <message>
        <source>Maximum (°C):</source>
        <translation>Maximum (°C)&#xa0;:</translation>
    </message>
    <message>
        <source>Disable changes via button</source>
        <translation>Désactiver les changements par bouton</translation>
    </message>
    <message>
        <source>Advanced Options</source>
        <translation>Options avancées</translation>
    </message>
    <message>
        <source>Report Information (optional)</source>
        <translation>Informations du rapport (facultatives)</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Expéditeur&#xa0;:</translation>
    </message>
    <message>
        <source>(0/60)</source>
        <translation>(0/60)</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinataire&#xa0;:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informations&#xa0;:</translation>
    </message>
    <message>
        <source>Tracking Information (optional)</source>
        <translation>Informations de suivi (facultatives)</translation>
    </message>
    <message>
        <source>Barcode on logger:</source>
        <translation>Code-barres de l&apos;enregistreur&#xa0;:</translation>
    </message>
    <message>
        <source>(0/10)</source>
        <translation>(0/10)</translation>
    </message>
    <message>
        <source>Shipment type:</source>
        <translation>Type d&apos;expédition&#xa0;:</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Defaut preset    </source>
        <translation>Préréglage par défaut    </translation>
    </message>
    <message>
        <source>Start  </source>
        <translation>Démarrer  </translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Save all to preset</source>
        <translation>Tout enregistrer dans un préréglage</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Load from preset</source>
        <translation>Charger un préréglage</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Online help</source>
        <translation>Aide en ligne</translation>
    </message>
    <message>
        <source>Quickstart guide</source>
        <translation>Guide de démarrage rapide</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Read data from device (%1)</source>
        <translation>Lire les données de l&apos;appareil (%1)</translation>
    </message>
    <message>
        <source>Write data to device (%1)</source>
        <translation>Écrire les données sur l&apos;appareil (%1)</translation>
    </message>
    <message>
        <source>Start device (%1)</source>
        <translation>Démarrer l&apos;appareil (%1)</translation>
    </message>
    <message>
        <source>Load default preset (%1)</source>
        <translation>Charger le préréglage par défaut (%1)</translation>
    </message>
    <message>
        <source>Advanced security and startup options</source>
        <translation>Options avancées de sécurité et de démarrage</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to exit?</source>
        <translation>Des modifications n&apos;ont pas été écrites sur l&apos;appareil.
Voulez-vous vraiment quitter&#xa0;?</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>&lt;p&gt;No device found!&lt;br&gt;</source>
        <translation>&lt;p&gt;Aucun appareil trouvé&#xa0;!&lt;br&gt;</translation>
    </message>
    <message>
        <source>Make sure the device is connected and try again.&lt;br&gt;</source>
        <translation>Vérifiez que l&apos;appareil est branché et réessayez.&lt;br&gt;</translation>
    </message>
    <message>
        <source>If your Brumalogger USB is already connected as a USB Thumb Drive, this software tool will be &lt;b&gt;unable&lt;/b&gt; to connect to it.&lt;/p&gt;</source>
        <translation>Si votre Brumalogger USB est déjà connecté comme clé USB, ce logiciel ne pourra &lt;b&gt;pas&lt;/b&gt; s&apos;y connecter.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connecting to device... </source>
        <translation>Connexion à l&apos;appareil... </translation>
    </message>
    <message>
        <source>&lt;p&gt;Connected to device, but failed to read it correctly.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Connecté à l&apos;appareil, mais la lecture a échoué.&lt;br&gt;Veuillez relancer la lecture.&lt;br&gt;Si le problème persiste, sélectionnez &lt;b&gt;Désactiver la lecture/écriture rapide&lt;/b&gt; dans le menu &lt;b&gt;Paramètres&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Connected to device on %1</source>
        <translation>Connecté à l&apos;appareil sur %1</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Déconnexion</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to disconnect?</source>
        <translation>Des modifications n&apos;ont pas été écrites sur l&apos;appareil.
Voulez-vous vraiment déconnecter l&apos;appareil&#xa0;?</translation>
    </message>
    <message>
        <source>Disconnected from %1</source>
        <translation>Déconnecté de %1</translation>
    </message>
    <message>
        <source>Invalid device detected.</source>
        <translation>Appareil non valide détecté.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>This device is in an invalid state.
No connection can be established. Aborting.</source>
        <translation>Cet appareil est dans un état non valide.
La connexion ne peut pas être établie. Abandon.</translation>
    </message>
    <message>
        <source>Connect to device (%1)</source>
        <translation>Se connecter à l&apos;appareil (%1)</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Disconnect from device (%1)</source>
        <translation>Se déconnecter de l&apos;appareil (%1)</translation>
    </message>
    <message>
        <source>Fetching time and date from server pool...</source>
        <translation>Obtention de la date et de l&apos;heure (source&#xa0;: groupe de serveurs)...</translation>
    </message>
    <message>
        <source>Fetching time and date from %1...</source>
        <translation>Obtention de la date et de l&apos;heure (source&#xa0;: %1)...</translation>
    </message>
    <message>
        <source>server pool</source>
        <translation>groupe de serveurs</translation>
    </message>
    <message>
        <source>Successfully fetched time and date from %1.</source>
        <translation>Date et heure obtenues (source&#xa0;: %1).</translation>
    </message>
    <message>
        <source>Unable to fetch date and time from %1. Check your connections or try another server.</source>
        <translation>Date et heure non obtenues (source&#xa0;: %1). Vérifiez vos connexions ou essayez un autre serveur.</translation>
    </message>
    <message>
        <source>Copy as text...</source>
        <translation>Copier comme texte...</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;The device&apos;s battery is LOW.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot; font-weight:600; color:#ff0000;&quot;&gt;La pile de l&apos;appareil est FAIBLE.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please replace the battery immediately.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Veuillez remplacer la pile immédiatement.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Please refrain from using this device.&lt;/span&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;span style=&quot;font-weight:600; color:#ff0000;&quot;&gt;Veuillez ne plus utiliser cet appareil.&lt;/span&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read from device</source>
        <translation>Lire l&apos;appareil</translation>
    </message>
    <message>
        <source>Reading from the device now will erase your changes.
Do you wish to proceed?</source>
        <translation>Lire l&apos;appareil maintenant effacera vos modifications.
Voulez-vous continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Reading from device on %1</source>
        <translation>Lecture de l&apos;appareil sur %1</translation>
    </message>
    <message>
        <source>Reading from device</source>
        <translation>Lecture de l&apos;appareil</translation>
    </message>
    <message>
        <source>&lt;p&gt;Read procedure failed.&lt;br&gt;Please retry the Read operation.&lt;br&gt;If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;La lecture a échoué.&lt;br&gt;Veuillez relancer la lecture.&lt;br&gt;Si le problème persiste, sélectionnez &lt;b&gt;Désactiver la lecture/écriture rapide&lt;/b&gt; dans le menu &lt;b&gt;Paramètres&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Read failed. Please retry.</source>
        <translation>Échec de la lecture. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Read successful</source>
        <translation>Lecture réussie</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutes</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 minutes</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minutes</translation>
    </message>
    <message>
        <source>30 minutes</source>
        <translation>30 minutes</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>2 hours</source>
        <translation>2 heures</translation>
    </message>
    <message>
        <source>3 hours</source>
        <translation>3 heures</translation>
    </message>
    <message>
        <source>4 hours</source>
        <translation>4 heures</translation>
    </message>
    <message>
        <source>2°C to 8°C</source>
        <translation>2&#xa0;°C à 8&#xa0;°C</translation>
    </message>
    <message>
        <source>-10°C to -1°C</source>
        <translation>-10&#xa0;°C à -1&#xa0;°C</translation>
    </message>
    <message>
        <source>-8°C to -2°C</source>
        <translation>-8&#xa0;°C à -2&#xa0;°C</translation>
    </message>
    <message>
        <source>2°C to 25°C</source>
        <translation>2&#xa0;°C à 25&#xa0;°C</translation>
    </message>
    <message>
        <source>15°C to 25°C</source>
        <translation>15&#xa0;°C à 25&#xa0;°C</translation>
    </message>
    <message>
        <source>15°C to 30°C</source>
        <translation>15&#xa0;°C à 30&#xa0;°C</translation>
    </message>
    <message>
        <source>-30°C to -15°C</source>
        <translation>-30&#xa0;°C à -15&#xa0;°C</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Maximum temperature must be at least
one degree higher than minimum temperature.</source>
        <translation>La température maximale doit dépasser d&apos;au moins
un degré la température minimale.</translation>
    </message>
    <message>
        <source>Starting logger</source>
        <translation>Démarrage de l&apos;enregistreur</translation>
    </message>
    <message>
        <source>There are modifications that were not written to the device.
Do you really wish to start the device?</source>
        <translation>Des modifications n&apos;ont pas été écrites sur l&apos;appareil.
Voulez-vous vraiment démarrer l&apos;appareil&#xa0;?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Do you wish to start the device?
This operation cannot be undone.</source>
        <translation>Voulez-vous démarrer l&apos;appareil&#xa0;?
Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Software START is disabled</source>
        <translation>START par logiciel désactivé</translation>
    </message>
    <message>
        <source>Software START is disabled on this logger.</source>
        <translation>Le START par logiciel est désactivé sur cet enregistreur.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to start the device</source>
        <translation>Impossible de démarrer l&apos;appareil</translation>
    </message>
    <message>
        <source>Check your START/STOP dates</source>
        <translation>Vérifiez les dates de START/STOP</translation>
    </message>
    <message>
        <source>&lt;p&gt;Your current settings for the automatic START and/or STOP dates are invalid (probably outdated). Please check the &lt;b&gt;Advanced Options&lt;/b&gt; panel before continuing with the &lt;b&gt;Write&lt;/b&gt; operation.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Vos paramètres actuels pour les dates automatiques de START et/ou de STOP ne sont pas valides (probablement dépassés). Veuillez vérifier le volet &lt;b&gt;Options avancées&lt;/b&gt; avant de poursuivre l&apos;opération &lt;b&gt;Écrire&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Writing to device...</source>
        <translation>Écriture sur l&apos;appareil...</translation>
    </message>
    <message>
        <source>Writing to device</source>
        <translation>Écriture sur l&apos;appareil</translation>
    </message>
    <message>
        <source>Write procedure canceled by user.
Parameters on device may be in an undefined state.
Executing the procedure again is recommended.</source>
        <translation>Écriture annulée par l&apos;utilisateur.
Les paramètres de l&apos;appareil peuvent être dans un état indéfini.
Il est recommandé de relancer l&apos;écriture.</translation>
    </message>
    <message>
        <source>&lt;p&gt;Write procedure failed.&lt;br&gt;Parameters on device may be in an undefined state.
Executing the procedure again is recommended.
If the issue persists, select &lt;b&gt;Disable fast Read/Write&lt;/b&gt; under the &lt;b&gt;Settings&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;L&apos;écriture a échoué.&lt;br&gt;Les paramètres de l&apos;appareil peuvent être dans un état indéfini.
Il est recommandé de relancer l&apos;écriture.
Si le problème persiste, sélectionnez &lt;b&gt;Désactiver la lecture/écriture rapide&lt;/b&gt; dans le menu &lt;b&gt;Paramètres&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Write successful</source>
        <translation>Écriture réussie</translation>
    </message>
    <message>
        <source>Write failed. Please retry</source>
        <translation>Échec de l&apos;écriture. Veuillez réessayer</translation>
    </message>
    <message>
        <source>Updating time and date settings.</source>
        <translation>Mise à jour de la date et de l&apos;heure.</translation>
    </message>
    <message>
        <source>Changing Time Zone setting</source>
        <translation>Changement du fuseau horaire</translation>
    </message>
    <message>
        <source>&lt;p&gt;There are automatic START/STOP dates that were configured using a different Time Zone setting. Please review these settings in the &lt;b&gt;Advanced Options&lt;/b&gt; menu.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Des dates automatiques de START/STOP ont été configurées avec un autre fuseau horaire. Veuillez vérifier ces paramètres dans le menu &lt;b&gt;Options avancées&lt;/b&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save to preset</source>
        <translation>Enregistrer dans un préréglage</translation>
    </message>
    <message>
        <source>Load preset</source>
        <translation>Charger un préréglage</translation>
    </message>
    <message>
        <source>Unable to read from selected file. File is corrupted.</source>
        <translation>Impossible de lire le fichier sélectionné. Le fichier est corrompu.</translation>
    </message>
    <message>
        <source>Loaded %1</source>
        <translation>Préréglage chargé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Server(s) cannot be reached for synchronization.
Time Zone will be ignored.</source>
        <translation>Le préréglage chargé définit un fuseau horaire (%1), mais aucun serveur de temps n&apos;est joignable pour la synchronisation.
Le fuseau horaire sera ignoré.</translation>
    </message>
    <message>
        <source>Loaded preset sets a Time Zone (%1) but Time Configuration is currently disabled.
Time Zone will be ignored.</source>
        <translation>Le préréglage chargé définit un fuseau horaire (%1), mais la configuration de l&apos;heure est actuellement désactivée.
Le fuseau horaire sera ignoré.</translation>
    </message>
    <message>
        <source>About Brumalogger Configuration Tool</source>
        <translation>À propos de Brumalogger Configuration Tool</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is recommended.&lt;p&gt;&lt;/p&gt;Click Ok to download it.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 est disponible au téléchargement.&lt;p&gt;&lt;/p&gt;Il est recommandé de mettre à jour votre version actuelle (v%2.%3.%4).&lt;p&gt;&lt;/p&gt;Cliquez sur OK pour télécharger la nouvelle version.&lt;/center&gt;</translation>
    </message>
    <message>
        <source>Update Required</source>
        <translation>Mise à jour requise</translation>
    </message>
    <message>
        <source>Brumalogger Configuration Tool v%1 is available for download.&lt;p&gt;&lt;/p&gt;Updating your current version (v%2.%3.%4) is mandatory.&lt;p&gt;&lt;/p&gt;This version contains important changes, so the update &lt;font color=&apos;red&apos;&gt;must&lt;/font&gt; be performed.&lt;p&gt;&lt;/p&gt;Click Ok to download it, or Cancel to quit the application.&lt;/center&gt;</source>
        <translation>Brumalogger Configuration Tool v%1 est disponible au téléchargement.&lt;p&gt;&lt;/p&gt;La mise à jour de votre version actuelle (v%2.%3.%4) est obligatoire.&lt;p&gt;&lt;/p&gt;La nouvelle version contient des changements importants&#xa0;: la mise à jour &lt;font color=&apos;red&apos;&gt;doit&lt;/font&gt; être effectuée.&lt;p&gt;&lt;/p&gt;Cliquez sur OK pour la télécharger ou sur Annuler pour quitter l&apos;application.&lt;/center&gt;</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password protected device</source>
        <translation>Appareil protégé par mot de passe</translation>
    </message>
    <message>
        <source>This device is password protected. Please unlock it to continue:</source>
        <translation>Cet appareil est protégé par mot de passe. Déverrouillez-le pour continuer&#xa0;:</translation>
    </message>
    <message>
        <source>Logger Information</source>
        <translation>Informations sur l&apos;enregistreur</translation>
    </message>
    <message>
        <source>Sender:</source>
        <translation>Expéditeur&#xa0;:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Destinataire&#xa0;:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informations&#xa0;:</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Plus...</translation>
    </message>
    <message>
        <source>The device is in the IDLE state.
After unlocking, it will be configurable with this tool.</source>
        <translation>L&apos;appareil est à l&apos;état IDLE.
Une fois déverrouillé, il pourra être configuré avec ce logiciel.</translation>
    </message>
    <message>
        <source>The device is in the FINISHED state.
After unlocking, the measurement reports will become available.</source>
        <translation>L&apos;appareil est à l&apos;état FINISHED.
Une fois l&apos;appareil déverrouillé, les rapports de mesure seront disponibles.</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Moins...</translation>
    </message>
    <message>
        <source>Failed while trying to unlock device.</source>
        <translation>Erreur lors du déverrouillage de l&apos;appareil.</translation>
    </message>
    <message>
        <source>Incorrect password.</source>
        <translation>Mot de passe incorrect.</translation>
    </message>
    <message>
        <source>Unlock device</source>
        <translation>Déverrouiller l&apos;appareil</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>I/O error when reading %1: %2</source>
        <translation>Erreur d&apos;E/S lors de la lecture de %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Default Preset</source>
        <translation>Préréglage par défaut</translation>
    </message>
    <message>
        <source>Enable preset</source>
        <translation>Activer le préréglage</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Application font size:</source>
        <translation>Taille de police de l&apos;application&#xa0;:</translation>
    </message>
    <message>
        <source>Application language:</source>
        <translation>Langue de l&apos;application&#xa0;:</translation>
    </message>
    <message>
        <source>Device Time Configuration</source>
        <translation>Configuration de l&apos;heure de l&apos;appareil</translation>
    </message>
    <message>
        <source>Time Server (NTP):</source>
        <translation>Serveur de temps (NTP)&#xa0;:</translation>
    </message>
    <message>
        <source>Disable Time Configuration</source>
        <translation>Désactiver la configuration de l&apos;heure</translation>
    </message>
    <message>
        <source>Enable/disable Time Zone Editor functinality.</source>
        <translation>Active ou désactive l&apos;éditeur de fuseau horaire.</translation>
    </message>
    <message>
        <source>Enforce use of time server</source>
        <translation>Imposer l&apos;utilisation d&apos;un serveur de temps</translation>
    </message>
    <message>
        <source>Fetch time reference from time server instead of using local computer time.</source>
        <translation>Obtient l&apos;heure de référence auprès d&apos;un serveur de temps au lieu d&apos;utiliser l&apos;heure de l&apos;ordinateur.</translation>
    </message>
    <message>
        <source>Use multiple time servers (recommended)</source>
        <translation>Utiliser plusieurs serveurs de temps (recommandé)</translation>
    </message>
    <message>
        <source>Fetch time reference from multiple servers. Using single servers is disencouraged, as they may send slightly outdated references.</source>
        <translation>Obtient l&apos;heure de référence auprès de plusieurs serveurs. L&apos;utilisation d&apos;un seul serveur est déconseillée, car il peut envoyer une heure légèrement en retard.</translation>
    </message>
    <message>
        <source>General Device Settings</source>
        <translation>Paramètres généraux de l&apos;appareil</translation>
    </message>
    <message>
        <source>Disable fast Read/Write (recommended for slower computers)</source>
        <translation>Désactiver la lecture/écriture rapide (recommandé pour ordinateurs lents)</translation>
    </message>
    <message>
        <source>Disables the standard fast Read/Write. Recommended if the computer is facing issues during Read/Write operations to the device.</source>
        <translation>Désactive la lecture/écriture rapide utilisée par défaut. Recommandé si l&apos;ordinateur rencontre des problèmes lors des opérations de lecture ou d&apos;écriture sur l&apos;appareil.</translation>
    </message>
    <message>
        <source>Recommended</source>
        <translation>Recommandé</translation>
    </message>
    <message>
        <source>Select preset</source>
        <translation>Sélectionner un préréglage</translation>
    </message>
</context>
<context>
    <name>TimeZoneDialog</name>
    <message>
        <source>Time Zone Editor</source>
        <translation>Éditeur de fuseau horaire</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>Source&#xa0;:</translation>
    </message>
    <message>
        <source>UTC/GMT:</source>
        <translation>UTC/GMT&#xa0;:</translation>
    </message>
    <message>
        <source>Local:</source>
        <translation>Heure locale&#xa0;:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Current:</source>
        <translation>Heure actuelle&#xa0;:</translation>
    </message>
    <message>
        <source>Set to:</source>
        <translation>Régler sur&#xa0;:</translation>
    </message>
    <message>
        <source>Updated date/time:</source>
        <translation>Nouvelle date/heure&#xa0;:</translation>
    </message>
    <message>
        <source> (Time Zone Unknown)</source>
        <translation> (Fuseau horaire inconnu)</translation>
    </message>
    <message>
        <source>This computer&apos;s clock</source>
        <translation>Horloge de cet ordinateur</translation>
    </message>
    <message>
        <source>Server pool</source>
        <translation>Groupe de serveurs</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Are you sure you want to change the device&apos;s time setting?</source>
        <translation>Voulez-vous vraiment modifier l&apos;heure de l&apos;appareil&#xa0;?</translation>
    </message>
</context>
</TS>
