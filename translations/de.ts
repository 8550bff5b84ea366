<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BackdropMessage</name>
    <message>
        <source>Location access is required
to scan for networks.

Please enable it
in System Settings.</source>
        <translation>Der Zugriff auf den Standort ist nötig,
um nach Netzwerken zu suchen.

Bitte erlauben Sie ihn
in den Systemeinstellungen.</translation>
    </message>
    <message>
        <source>Select a network to view details</source>
        <translation>Wählen Sie ein Netzwerk aus, um Einzelheiten zu sehen</translation>
    </message>
    <message>
        <source>Scanning for networks.
Please wait...</source>
        <translation>Suche nach Netzwerken.
Bitte warten …</translation>
    </message>
</context>
<context>
    <name>ChartLegend</name>
    <message>
        <source>Signal History</source>
        <translation>Signalverlauf</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
</context>
<context>
    <name>HoverableDot</name>
    <message>
        <source>RSSI: %1 dBm</source>
        <translation>RSSI: %1 dBm</translation>
    </message>
    <message>
        <source>Noise: %1 dBm</source>
        <translation>Rauschen: %1 dBm</translation>
    </message>
</context>
<context>
    <name>JoinFailure</name>
    <message>
        <source>The Wi-Fi radio is off</source>
        <translation>WLAN ist ausgeschaltet</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is gone</source>
        <translation>Die WLAN-Schnittstelle %1 ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is not available</source>
        <translation>Die WLAN-Schnittstelle %1 ist nicht verfügbar</translation>
    </message>
    <message>
        <source>The network&apos;s name is not known</source>
        <translation>Der Name des Netzwerks ist nicht bekannt</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager läuft nicht</translation>
    </message>
    <message>
        <source>NetworkManager does not manage the Wi-Fi interface %1</source>
        <translation>NetworkManager verwaltet die WLAN-Schnittstelle %1 nicht</translation>
    </message>
    <message>
        <source>The network does not let this machine in: the password is probably not correct</source>
        <translation>Das Netzwerk lässt diesen Rechner nicht zu: Das Passwort ist vermutlich falsch</translation>
    </message>
    <message>
        <source>The network does not let this machine in</source>
        <translation>Das Netzwerk lässt diesen Rechner nicht zu</translation>
    </message>
    <message>
        <source>The password is not correct</source>
        <translation>Das Passwort ist falsch</translation>
    </message>
    <message>
        <source>The login that is stored for the network is not correct</source>
        <translation>Die für das Netzwerk gespeicherten Anmeldedaten sind falsch</translation>
    </message>
    <message>
        <source>The network is out of reach</source>
        <translation>Das Netzwerk ist außer Reichweite</translation>
    </message>
    <message>
        <source>The network gave this machine no address</source>
        <translation>Das Netzwerk hat diesem Rechner keine Adresse zugewiesen</translation>
    </message>
    <message>
        <source>The access point broke off the attempt to join</source>
        <translation>Der Zugangspunkt hat den Verbindungsversuch abgebrochen</translation>
    </message>
    <message>
        <source>The access point did not answer in time</source>
        <translation>Der Zugangspunkt hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>This machine&apos;s Wi-Fi service failed to join the network</source>
        <translation>Der WLAN-Dienst dieses Rechners konnte keine Verbindung mit dem Netzwerk herstellen</translation>
    </message>
    <message>
        <source>The Wi-Fi interface is gone</source>
        <translation>Die WLAN-Schnittstelle ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Networking was switched off, or the machine went to sleep</source>
        <translation>Das Netzwerk wurde ausgeschaltet oder der Rechner in Bereitschaft versetzt</translation>
    </message>
    <message>
        <source>The attempt to join was ended from elsewhere</source>
        <translation>Der Verbindungsversuch wurde von anderer Stelle beendet</translation>
    </message>
    <message>
        <source>Another connection was started meanwhile</source>
        <translation>Inzwischen wurde eine andere Verbindung gestartet</translation>
    </message>
    <message>
        <source>NetworkManager failed to join the network, for its reason number %1</source>
        <translation>NetworkManager konnte keine Verbindung mit dem Netzwerk herstellen (Grund Nummer %1)</translation>
    </message>
    <message>
        <source>The system does not permit this user to join networks</source>
        <translation>Dieser Benutzer darf sich auf diesem System nicht mit Netzwerken verbinden</translation>
    </message>
    <message>
        <source>NetworkManager ended during the attempt to join</source>
        <translation>NetworkManager wurde während des Verbindungsversuchs beendet</translation>
    </message>
    <message>
        <source>The attempt to join was stopped</source>
        <translation>Der Verbindungsversuch wurde abgebrochen</translation>
    </message>
    <message>
        <source>The network gave this machine no address in time</source>
        <translation>Das Netzwerk hat diesem Rechner nicht rechtzeitig eine Adresse zugewiesen</translation>
    </message>
    <message>
        <source>Joining the network took too long</source>
        <translation>Das Verbinden mit dem Netzwerk hat zu lange gedauert</translation>
    </message>
    <message>
        <source>The network asks for a login of its own kind, which has to be set up in the system&apos;s network settings first</source>
        <translation>Das Netzwerk verlangt eine eigene Anmeldung, die zuerst in den Netzwerkeinstellungen des Systems eingerichtet werden muss</translation>
    </message>
    <message>
        <source>The network needs a password</source>
        <translation>Das Netzwerk erfordert ein Passwort</translation>
    </message>
    <message>
        <source>The password is not correct: it holds a character that cannot be part of one</source>
        <translation>Das Passwort ist falsch: Es enthält ein unzulässiges Zeichen</translation>
    </message>
    <message>
        <source>The password is not correct: a WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits</source>
        <translation>Das Passwort ist falsch: Ein WEP-Schlüssel hat 5 oder 13 Zeichen oder 10 oder 26 Hexadezimalziffern</translation>
    </message>
    <message>
        <source>The password is not correct: it has 8 to 63 characters, or 64 hexadecimal digits</source>
        <translation>Das Passwort ist falsch: Es hat 8 bis 63 Zeichen oder 64 Hexadezimalziffern</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager antwortet nicht</translation>
    </message>
    <message>
        <source>NetworkManager does not permit this: %1</source>
        <translation>NetworkManager lässt dies nicht zu: %1</translation>
    </message>
    <message>
        <source>NetworkManager cannot do this now: %1</source>
        <translation>NetworkManager kann dies derzeit nicht ausführen: %1</translation>
    </message>
    <message>
        <source>NetworkManager does not know the device: %1</source>
        <translation>NetworkManager kennt das Gerät nicht: %1</translation>
    </message>
    <message>
        <source>NetworkManager gave an answer of a wrong type: %1</source>
        <translation>NetworkManager hat eine Antwort vom falschen Typ gegeben: %1</translation>
    </message>
    <message>
        <source>NetworkManager reports an error: %1</source>
        <translation>NetworkManager meldet einen Fehler: %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Aerolith</source>
        <translation>Über Aerolith</translation>
    </message>
    <message>
        <source>Aerolith %1</source>
        <translation>Aerolith %1</translation>
    </message>
    <message>
        <source>Wi-Fi survey for the Linux desktop.
Free software under the MIT License.</source>
        <translation>WLAN-Vermessung für den Linux-Desktop.
Freie Software unter der MIT-Lizenz.</translation>
    </message>
    <message>
        <source>&amp;Aerolith</source>
        <translation>&amp;Aerolith</translation>
    </message>
    <message>
        <source>&amp;About Aerolith</source>
        <translation>&amp;Über Aerolith</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>&amp;Seitenleiste ein-/ausblenden</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Contact &amp;Support</source>
        <translation>&amp;Support kontaktieren</translation>
    </message>
</context>
<context>
    <name>NetworkDetails</name>
    <message>
        <source>Received Signal Strength Indicator - measures how strong the WiFi signal is</source>
        <translation>Received Signal Strength Indicator – misst, wie stark das WLAN-Signal ist</translation>
    </message>
    <message>
        <source>Background interference level that can affect signal quality</source>
        <translation>Pegel der Hintergrundstörungen, die die Signalqualität beeinträchtigen können</translation>
    </message>
    <message>
        <source>Signal-to-Noise Ratio - higher values mean better signal quality</source>
        <translation>Signal-Rausch-Verhältnis – höhere Werte bedeuten bessere Signalqualität</translation>
    </message>
    <message>
        <source>Network name broadcast by the access point</source>
        <translation>Vom Zugangspunkt ausgesendeter Netzwerkname</translation>
    </message>
    <message>
        <source>Unique identifier (MAC address) of the access point</source>
        <translation>Eindeutige Kennung (MAC-Adresse) des Zugangspunkts</translation>
    </message>
    <message>
        <source>WiFi channel number used for transmission</source>
        <translation>Nummer des zur Übertragung verwendeten WLAN-Kanals</translation>
    </message>
    <message>
        <source>Frequency band used by the network (2.4 GHz or 5 GHz)</source>
        <translation>Vom Netzwerk verwendetes Frequenzband (2,4 GHz oder 5 GHz)</translation>
    </message>
    <message>
        <source>Width of the frequency channel - wider channels can provide higher speeds</source>
        <translation>Breite des Frequenzkanals – breitere Kanäle können höhere Geschwindigkeiten bieten</translation>
    </message>
    <message>
        <source>Security protocol used to protect the network</source>
        <translation>Sicherheitsprotokoll, das das Netzwerk schützt</translation>
    </message>
    <message>
        <source>Country code defining regional WiFi regulations</source>
        <translation>Ländercode, der die regionalen WLAN-Vorschriften bestimmt</translation>
    </message>
    <message>
        <source>Time between router beacon transmissions in milliseconds</source>
        <translation>Zeit zwischen zwei Beacons des Routers in Millisekunden</translation>
    </message>
    <message>
        <source>Infrastructure networks use access points, Ad-Hoc are direct device-to-device</source>
        <translation>Infrastruktur-Netzwerke nutzen Zugangspunkte, Ad-hoc-Netzwerke verbinden Geräte direkt miteinander</translation>
    </message>
    <message>
        <source>Supported WiFi standards and transmission modes</source>
        <translation>Unterstützte WLAN-Standards und Übertragungsarten</translation>
    </message>
    <message>
        <source>latest %1 dBm</source>
        <translation>zuletzt %1 dBm</translation>
    </message>
    <message>
        <source>lowest %1 dBm</source>
        <translation>niedrigster Wert %1 dBm</translation>
    </message>
    <message>
        <source>highest %1 dBm</source>
        <translation>höchster Wert %1 dBm</translation>
    </message>
    <message>
        <source>1 sample</source>
        <translation>1 Messwert</translation>
    </message>
    <message numerus="yes">
        <source>%n samples</source>
        <translation>
            <numerusform>%n Messwert</numerusform>
            <numerusform>%n Messwerte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NetworkRowInMenu</name>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>%1, joined</source>
        <translation>%1, verbunden</translation>
    </message>
    <message>
        <source>Connect to %1, %2</source>
        <extracomment>%1 is a network, %2 its security.</extracomment>
        <translation>Mit %1 verbinden, %2</translation>
    </message>
</context>
<context>
    <name>NetworkRowView</name>
    <message>
        <source>%1 • Ch %2 (%3)</source>
        <extracomment>The second line of a row: its security, its channel&apos;s number and its band, as in &quot;WPA2 • Ch 36 (5 GHz)&quot;.</extracomment>
        <translation>%1 • Kanal %2 (%3)</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>%1 of %2 bars</source>
        <translation>%1 von %2 Balken</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>verbunden</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
</context>
<context>
    <name>NetworkTexts</name>
    <message>
        <source>Open</source>
        <extracomment>The security of a network that anybody may join.</extracomment>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Secure</source>
        <extracomment>The security of a network by some means that has no short name.</extracomment>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>The band of a network.</extracomment>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a text that is read out, as in &quot;Café, WPA2, channel 6&quot;.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>UpdateContents</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Nach Aktualisierungen wird gesucht …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Aerolith is up to date</source>
        <translation>Aerolith ist aktuell</translation>
    </message>
    <message>
        <source>There is nothing newer than version %1.</source>
        <translation>Es gibt nichts Neueres als Version %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Aerolith %1 is available</source>
        <translation>Aerolith %1 ist verfügbar</translation>
    </message>
    <message>
        <source>You have version %1. The download is %2.</source>
        <translation>Sie haben Version %1. Der Download ist %2 groß.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Downloading Aerolith %1…</source>
        <translation>Aerolith %1 wird heruntergeladen …</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Aerolith %1 is downloaded</source>
        <translation>Aerolith %1 wurde heruntergeladen</translation>
    </message>
    <message>
        <source>Its signature is right. It was saved as
%1</source>
        <translation>Die Signatur stimmt. Gespeichert als
%1</translation>
    </message>
    <message>
        <source>Updates could not be checked</source>
        <translation>Die Suche nach Aktualisierungen ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>The update was not downloaded</source>
        <translation>Die Aktualisierung wurde nicht heruntergeladen</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UpdateFailure</name>
    <message>
        <source>The update feed cannot be read: %1</source>
        <translation>Die Liste der Aktualisierungen kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Nothing can be saved in %1: %2</source>
        <translation>In %1 kann nichts gespeichert werden: %2</translation>
    </message>
    <message>
        <source>%1 has been silent for %2 seconds</source>
        <translation>%1 hat seit %2 Sekunden nichts gesendet</translation>
    </message>
    <message>
        <source>%1 was not done after %2 seconds</source>
        <translation>%1 war nach %2 Sekunden nicht fertig</translation>
    </message>
    <message>
        <source>%1 answered with the HTTP status %2</source>
        <translation>%1 hat mit dem HTTP-Status %2 geantwortet</translation>
    </message>
    <message>
        <source>%1 redirects to an address that is not https: %2</source>
        <translation>%1 leitet zu einer Adresse weiter, die nicht mit https beginnt: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 redirects more than %n times</source>
        <translation>
            <numerusform>%1 leitet mehr als %n Mal weiter</numerusform>
            <numerusform>%1 leitet mehr als %n Mal weiter</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no secure connection to %1: %2</source>
        <translation>Es gibt keine sichere Verbindung zu %1: %2</translation>
    </message>
    <message>
        <source>The connection to %1 ended after %2 bytes: %3</source>
        <translation>Die Verbindung zu %1 endete nach %2 Bytes: %3</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1 ist nicht erreichbar: %2</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that it should have</source>
        <translation>Die Datei ist länger als die vorgesehenen %1 Bytes</translation>
    </message>
    <message>
        <source>The file has %1 bytes in place of the %2 that it should have</source>
        <translation>Die Datei hat %1 Bytes statt der vorgesehenen %2</translation>
    </message>
    <message>
        <source>The file&apos;s signature is wrong: it does not come from the makers of Aerolith</source>
        <translation>Die Signatur der Datei ist falsch: Sie stammt nicht von den Entwicklern von Aerolith</translation>
    </message>
</context>
<context>
    <name>WiFiConnectionManager</name>
    <message>
        <source>Connection Failed</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>XdgWorkspace</name>
    <message>
        <source>Cannot open a tool for network diagnostics: not installed: %1</source>
        <translation>Es ist kein Programm zur Netzwerkdiagnose installiert: %1</translation>
    </message>
</context>
<context>
    <name>aerolith::Alert</name>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
</context>
<context>
    <name>aerolith::Announcer</name>
    <message>
        <source>Scan failed</source>
        <translation>Suche fehlgeschlagen</translation>
    </message>
    <message>
        <source>Scan finished: 1 network</source>
        <translation>Suche beendet: 1 Netzwerk</translation>
    </message>
    <message numerus="yes">
        <source>Scan finished: %n networks</source>
        <translation>
            <numerusform>Suche beendet: %n Netzwerk</numerusform>
            <numerusform>Suche beendet: %n Netzwerke</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>aerolith::CheckForUpdatesView</name>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
</context>
<context>
    <name>aerolith::CustomSignalChart</name>
    <message>
        <source>Signal History</source>
        <translation>Signalverlauf</translation>
    </message>
</context>
<context>
    <name>aerolith::DetailStatusBar</name>
    <message>
        <source>Export network data</source>
        <translation>Netzwerkdaten exportieren</translation>
    </message>
    <message>
        <source>Refresh network data</source>
        <translation>Netzwerkdaten aktualisieren</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <extracomment>%1 is a time before now, as in &quot;5 sec. ago&quot;.</extracomment>
        <translation>Zuletzt gesehen %1</translation>
    </message>
</context>
<context>
    <name>aerolith::MainWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Wi-Fi interface information</source>
        <translation>Informationen zur WLAN-Schnittstelle</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>Seitenleiste ausblenden</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>Seitenleiste einblenden</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkDetailView</name>
    <message>
        <source>Network details</source>
        <translation>Netzwerkdetails</translation>
    </message>
    <message>
        <source>Signal Overview</source>
        <translation>Signalübersicht</translation>
    </message>
    <message>
        <source>Network Information</source>
        <translation>Netzwerkinformationen</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkInfoDialog</name>
    <message>
        <source>Network Interface Information</source>
        <translation>Informationen zur Netzwerkschnittstelle</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Netzwerkeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>aerolith::PasswordDialog</name>
    <message>
        <source>Connect to %1</source>
        <translation>Mit %1 verbinden</translation>
    </message>
    <message>
        <source>Enter the network password:</source>
        <translation>Geben Sie das Passwort des Netzwerks ein:</translation>
    </message>
    <message>
        <source>Network password</source>
        <translation>Netzwerkpasswort</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindung wird hergestellt</translation>
    </message>
</context>
<context>
    <name>aerolith::SettingsView</name>
    <message>
        <source>Start at login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Scan Settings</source>
        <translation>Sucheinstellungen</translation>
    </message>
    <message>
        <source>Scan Interval</source>
        <translation>Suchintervall</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>The scan interval beside its slider: seconds, in as little room as there is.</extracomment>
        <translation>%1 s</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>History Points</source>
        <translation>Verlaufspunkte</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n Punkt</numerusform>
            <numerusform>%n Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>aerolith::Sidebar</name>
    <message>
        <source>Networks</source>
        <translation>Netzwerke</translation>
    </message>
    <message>
        <source>All Networks</source>
        <translation>Alle Netzwerke</translation>
    </message>
    <message>
        <source>Hiding Hidden</source>
        <translation>Ohne ausgeblendete</translation>
    </message>
    <message numerus="yes">
        <source>%n Networks</source>
        <translation>
            <numerusform>%n Netzwerk</numerusform>
            <numerusform>%n Netzwerke</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Network</source>
        <translation>Netzwerk einblenden</translation>
    </message>
    <message>
        <source>Hide Network</source>
        <translation>Netzwerk ausblenden</translation>
    </message>
</context>
<context>
    <name>aerolith::SidebarStatusBar</name>
    <message>
        <source>Export network list</source>
        <translation>Netzwerkliste exportieren</translation>
    </message>
    <message>
        <source>Clear network list</source>
        <translation>Netzwerkliste leeren</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Signal Strength</source>
        <translation>Signalstärke</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Netzwerkname</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Security Type</source>
        <translation>Sicherheitstyp</translation>
    </message>
</context>
<context>
    <name>aerolith::StatusMenuController</name>
    <message>
        <source>WiFi</source>
        <translation>WLAN</translation>
    </message>
</context>
<context>
    <name>aerolith::StatusMenuView</name>
    <message>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Netzwerke</translation>
    </message>
    <message>
        <source>Open App</source>
        <translation>App öffnen</translation>
    </message>
</context>
<context>
    <name>aerolith::ToolsButton</name>
    <message>
        <source>Tools</source>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Wi-Fi Settings...</source>
        <translation>WLAN-Einstellungen …</translation>
    </message>
    <message>
        <source>Wireless Diagnostics...</source>
        <translation>WLAN-Diagnose …</translation>
    </message>
</context>
<context>
    <name>aerolith::UpdateDialog</name>
    <message>
        <source>Check once a day automatically</source>
        <translation>Einmal täglich automatisch suchen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Softwareaktualisierung</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Neuerungen</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Suche läuft</translation>
    </message>
</context>
</TS>
