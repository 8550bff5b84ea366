<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BackdropMessage</name>
    <message>
        <source>Location access is required
to scan for networks.

Please enable it
in System Settings.</source>
        <translation>L’accès à la position est nécessaire
pour rechercher des réseaux.

Veuillez l’autoriser
dans les paramètres du système.</translation>
    </message>
    <message>
        <source>Select a network to view details</source>
        <translation>Sélectionnez un réseau pour en voir les détails</translation>
    </message>
    <message>
        <source>Scanning for networks.
Please wait...</source>
        <translation>Recherche de réseaux.
Veuillez patienter…</translation>
    </message>
</context>
<context>
    <name>ChartLegend</name>
    <message>
        <source>Signal History</source>
        <translation>Historique du signal</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
</context>
<context>
    <name>HoverableDot</name>
    <message>
        <source>RSSI: %1 dBm</source>
        <translation>RSSI&#xa0;: %1 dBm</translation>
    </message>
    <message>
        <source>Noise: %1 dBm</source>
        <translation>Bruit&#xa0;: %1 dBm</translation>
    </message>
</context>
<context>
    <name>JoinFailure</name>
    <message>
        <source>The Wi-Fi radio is off</source>
        <translation>Le Wi-Fi est désactivé</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is gone</source>
        <translation>L’interface Wi-Fi %1 n’est plus présente</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is not available</source>
        <translation>L’interface Wi-Fi %1 n’est pas disponible</translation>
    </message>
    <message>
        <source>The network&apos;s name is not known</source>
        <translation>Le nom du réseau n’est pas connu</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager n’est pas en cours d’exécution</translation>
    </message>
    <message>
        <source>NetworkManager does not manage the Wi-Fi interface %1</source>
        <translation>NetworkManager ne gère pas l’interface Wi-Fi %1</translation>
    </message>
    <message>
        <source>The network does not let this machine in: the password is probably not correct</source>
        <translation>Le réseau refuse cet ordinateur&#xa0;: le mot de passe est probablement incorrect</translation>
    </message>
    <message>
        <source>The network does not let this machine in</source>
        <translation>Le réseau refuse cet ordinateur</translation>
    </message>
    <message>
        <source>The password is not correct</source>
        <translation>Le mot de passe est incorrect</translation>
    </message>
    <message>
        <source>The login that is stored for the network is not correct</source>
        <translation>Les identifiants enregistrés pour ce réseau sont incorrects</translation>
    </message>
    <message>
        <source>The network is out of reach</source>
        <translation>Le réseau est hors de portée</translation>
    </message>
    <message>
        <source>The network gave this machine no address</source>
        <translation>Le réseau n’a pas attribué d’adresse à cet ordinateur</translation>
    </message>
    <message>
        <source>The access point broke off the attempt to join</source>
        <translation>Le point d’accès a interrompu la tentative de connexion</translation>
    </message>
    <message>
        <source>The access point did not answer in time</source>
        <translation>Le point d’accès n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>This machine&apos;s Wi-Fi service failed to join the network</source>
        <translation>Le service Wi-Fi de cet ordinateur n’a pas pu rejoindre le réseau</translation>
    </message>
    <message>
        <source>The Wi-Fi interface is gone</source>
        <translation>L’interface Wi-Fi n’est plus présente</translation>
    </message>
    <message>
        <source>Networking was switched off, or the machine went to sleep</source>
        <translation>Le réseau a été désactivé ou l’ordinateur a été mis en veille</translation>
    </message>
    <message>
        <source>The attempt to join was ended from elsewhere</source>
        <translation>La tentative de connexion a été arrêtée par ailleurs</translation>
    </message>
    <message>
        <source>Another connection was started meanwhile</source>
        <translation>Une autre connexion a été lancée entre-temps</translation>
    </message>
    <message>
        <source>NetworkManager failed to join the network, for its reason number %1</source>
        <translation>NetworkManager n’a pas pu rejoindre le réseau (motif numéro %1)</translation>
    </message>
    <message>
        <source>The system does not permit this user to join networks</source>
        <translation>Le système n’autorise pas cet utilisateur à rejoindre des réseaux</translation>
    </message>
    <message>
        <source>NetworkManager ended during the attempt to join</source>
        <translation>NetworkManager s’est arrêté pendant la tentative de connexion</translation>
    </message>
    <message>
        <source>The attempt to join was stopped</source>
        <translation>La tentative de connexion a été annulée</translation>
    </message>
    <message>
        <source>The network gave this machine no address in time</source>
        <translation>Le réseau n’a pas attribué d’adresse à cet ordinateur à temps</translation>
    </message>
    <message>
        <source>Joining the network took too long</source>
        <translation>La connexion au réseau a pris trop de temps</translation>
    </message>
    <message>
        <source>The network asks for a login of its own kind, which has to be set up in the system&apos;s network settings first</source>
        <translation>Le réseau demande une authentification particulière, à configurer d’abord dans les paramètres réseau du système</translation>
    </message>
    <message>
        <source>The network needs a password</source>
        <translation>Le réseau nécessite un mot de passe</translation>
    </message>
    <message>
        <source>The password is not correct: it holds a character that cannot be part of one</source>
        <translation>Le mot de passe est incorrect&#xa0;: il contient un caractère non autorisé</translation>
    </message>
    <message>
        <source>The password is not correct: a WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits</source>
        <translation>Le mot de passe est incorrect&#xa0;: une clé WEP compte 5 ou 13 caractères, ou 10 ou 26 chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>The password is not correct: it has 8 to 63 characters, or 64 hexadecimal digits</source>
        <translation>Le mot de passe est incorrect&#xa0;: il compte 8 à 63 caractères, ou 64 chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager ne répond pas</translation>
    </message>
    <message>
        <source>NetworkManager does not permit this: %1</source>
        <translation>NetworkManager ne l’autorise pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>NetworkManager cannot do this now: %1</source>
        <translation>NetworkManager ne peut pas le faire actuellement&#xa0;: %1</translation>
    </message>
    <message>
        <source>NetworkManager does not know the device: %1</source>
        <translation>NetworkManager ne connaît pas le périphérique&#xa0;: %1</translation>
    </message>
    <message>
        <source>NetworkManager gave an answer of a wrong type: %1</source>
        <translation>NetworkManager a donné une réponse d’un type incorrect&#xa0;: %1</translation>
    </message>
    <message>
        <source>NetworkManager reports an error: %1</source>
        <translation>NetworkManager signale une erreur&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Aerolith</source>
        <translation>À propos d’Aerolith</translation>
    </message>
    <message>
        <source>Aerolith %1</source>
        <translation>Aerolith %1</translation>
    </message>
    <message>
        <source>Wi-Fi survey for the Linux desktop.
Free software under the MIT License.</source>
        <translation>Analyse Wi-Fi pour le bureau Linux.
Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>&amp;Aerolith</source>
        <translation>&amp;Aerolith</translation>
    </message>
    <message>
        <source>&amp;About Aerolith</source>
        <translation>À &amp;propos d’Aerolith</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>Afficher/masquer la &amp;barre latérale</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Contact &amp;Support</source>
        <translation>Contacter le &amp;support</translation>
    </message>
</context>
<context>
    <name>NetworkDetails</name>
    <message>
        <source>Received Signal Strength Indicator - measures how strong the WiFi signal is</source>
        <translation>Received Signal Strength Indicator – mesure la puissance du signal Wi-Fi</translation>
    </message>
    <message>
        <source>Background interference level that can affect signal quality</source>
        <translation>Niveau des interférences de fond qui peuvent nuire à la qualité du signal</translation>
    </message>
    <message>
        <source>Signal-to-Noise Ratio - higher values mean better signal quality</source>
        <translation>Rapport signal/bruit – plus la valeur est élevée, meilleure est la qualité du signal</translation>
    </message>
    <message>
        <source>Network name broadcast by the access point</source>
        <translation>Nom du réseau diffusé par le point d’accès</translation>
    </message>
    <message>
        <source>Unique identifier (MAC address) of the access point</source>
        <translation>Identifiant unique (adresse MAC) du point d’accès</translation>
    </message>
    <message>
        <source>WiFi channel number used for transmission</source>
        <translation>Numéro du canal Wi-Fi utilisé pour la transmission</translation>
    </message>
    <message>
        <source>Frequency band used by the network (2.4 GHz or 5 GHz)</source>
        <translation>Bande de fréquences utilisée par le réseau (2,4 GHz ou 5 GHz)</translation>
    </message>
    <message>
        <source>Width of the frequency channel - wider channels can provide higher speeds</source>
        <translation>Largeur du canal de fréquences – les canaux plus larges peuvent offrir des débits plus élevés</translation>
    </message>
    <message>
        <source>Security protocol used to protect the network</source>
        <translation>Protocole de sécurité qui protège le réseau</translation>
    </message>
    <message>
        <source>Country code defining regional WiFi regulations</source>
        <translation>Code du pays qui définit la réglementation Wi-Fi locale</translation>
    </message>
    <message>
        <source>Time between router beacon transmissions in milliseconds</source>
        <translation>Temps entre deux balises du routeur, en millisecondes</translation>
    </message>
    <message>
        <source>Infrastructure networks use access points, Ad-Hoc are direct device-to-device</source>
        <translation>Les réseaux d’infrastructure utilisent des points d’accès, les réseaux ad hoc relient directement les appareils</translation>
    </message>
    <message>
        <source>Supported WiFi standards and transmission modes</source>
        <translation>Normes Wi-Fi et modes de transmission pris en charge</translation>
    </message>
    <message>
        <source>latest %1 dBm</source>
        <translation>dernier %1 dBm</translation>
    </message>
    <message>
        <source>lowest %1 dBm</source>
        <translation>minimum %1 dBm</translation>
    </message>
    <message>
        <source>highest %1 dBm</source>
        <translation>maximum %1 dBm</translation>
    </message>
    <message>
        <source>1 sample</source>
        <translation>1 mesure</translation>
    </message>
    <message numerus="yes">
        <source>%n samples</source>
        <translation>
            <numerusform>%n mesure</numerusform>
            <numerusform>%n mesures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NetworkRowInMenu</name>
    <message>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>%1, joined</source>
        <translation>%1, connecté</translation>
    </message>
    <message>
        <source>Connect to %1, %2</source>
        <extracomment>%1 is a network, %2 its security.</extracomment>
        <translation>Se connecter à %1, %2</translation>
    </message>
</context>
<context>
    <name>NetworkRowView</name>
    <message>
        <source>%1 • Ch %2 (%3)</source>
        <extracomment>The second line of a row: its security, its channel&apos;s number and its band, as in &quot;WPA2 • Ch 36 (5 GHz)&quot;.</extracomment>
        <translation>%1 • Canal %2 (%3)</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>canal %1</translation>
    </message>
    <message>
        <source>%1 of %2 bars</source>
        <translation>%1 barres sur %2</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>connecté</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>masqué</translation>
    </message>
</context>
<context>
    <name>NetworkTexts</name>
    <message>
        <source>Open</source>
        <extracomment>The security of a network that anybody may join.</extracomment>
        <translation>Ouvert</translation>
    </message>
    <message>
        <source>Secure</source>
        <extracomment>The security of a network by some means that has no short name.</extracomment>
        <translation>Sécurisé</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>The band of a network.</extracomment>
        <translation>Inconnue</translation>
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
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Aerolith is up to date</source>
        <translation>Aerolith est à jour</translation>
    </message>
    <message>
        <source>There is nothing newer than version %1.</source>
        <translation>Il n’existe rien de plus récent que la version %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Aerolith %1 is available</source>
        <translation>Aerolith %1 est disponible</translation>
    </message>
    <message>
        <source>You have version %1. The download is %2.</source>
        <translation>Vous avez la version %1. Le téléchargement pèse %2.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Downloading Aerolith %1…</source>
        <translation>Téléchargement d’Aerolith %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Aerolith %1 is downloaded</source>
        <translation>Aerolith %1 est téléchargé</translation>
    </message>
    <message>
        <source>Its signature is right. It was saved as
%1</source>
        <translation>Sa signature est valide. Enregistré sous
%1</translation>
    </message>
    <message>
        <source>Updates could not be checked</source>
        <translation>La recherche de mises à jour a échoué</translation>
    </message>
    <message>
        <source>The update was not downloaded</source>
        <translation>La mise à jour n’a pas été téléchargée</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UpdateFailure</name>
    <message>
        <source>The update feed cannot be read: %1</source>
        <translation>Impossible de lire le flux de mises à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>Impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>Nothing can be saved in %1: %2</source>
        <translation>Impossible d’enregistrer dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 has been silent for %2 seconds</source>
        <translation>%1 ne répond plus depuis %2 secondes</translation>
    </message>
    <message>
        <source>%1 was not done after %2 seconds</source>
        <translation>%1 n’avait pas terminé après %2 secondes</translation>
    </message>
    <message>
        <source>%1 answered with the HTTP status %2</source>
        <translation>%1 a répondu avec le statut HTTP %2</translation>
    </message>
    <message>
        <source>%1 redirects to an address that is not https: %2</source>
        <translation>%1 redirige vers une adresse qui n’est pas en https&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 redirects more than %n times</source>
        <translation>
            <numerusform>%1 redirige plus de %n fois</numerusform>
            <numerusform>%1 redirige plus de %n fois</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no secure connection to %1: %2</source>
        <translation>Aucune connexion sécurisée avec %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The connection to %1 ended after %2 bytes: %3</source>
        <translation>La connexion avec %1 s’est interrompue après %2 octets&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1 est injoignable&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that it should have</source>
        <translation>Le fichier dépasse les %1 octets prévus</translation>
    </message>
    <message>
        <source>The file has %1 bytes in place of the %2 that it should have</source>
        <translation>Le fichier compte %1 octets au lieu des %2 prévus</translation>
    </message>
    <message>
        <source>The file&apos;s signature is wrong: it does not come from the makers of Aerolith</source>
        <translation>La signature du fichier est incorrecte&#xa0;: il ne provient pas des auteurs d’Aerolith</translation>
    </message>
</context>
<context>
    <name>WiFiConnectionManager</name>
    <message>
        <source>Connection Failed</source>
        <translation>Échec de la connexion</translation>
    </message>
</context>
<context>
    <name>XdgWorkspace</name>
    <message>
        <source>Cannot open a tool for network diagnostics: not installed: %1</source>
        <translation>Aucun outil de diagnostic réseau n’est installé&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>aerolith::Alert</name>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>aerolith::Announcer</name>
    <message>
        <source>Scan failed</source>
        <translation>Échec de la recherche</translation>
    </message>
    <message>
        <source>Scan finished: 1 network</source>
        <translation>Recherche terminée&#xa0;: 1 réseau</translation>
    </message>
    <message numerus="yes">
        <source>Scan finished: %n networks</source>
        <translation>
            <numerusform>Recherche terminée&#xa0;: %n réseau</numerusform>
            <numerusform>Recherche terminée&#xa0;: %n réseaux</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>aerolith::CheckForUpdatesView</name>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
</context>
<context>
    <name>aerolith::CustomSignalChart</name>
    <message>
        <source>Signal History</source>
        <translation>Historique du signal</translation>
    </message>
</context>
<context>
    <name>aerolith::DetailStatusBar</name>
    <message>
        <source>Export network data</source>
        <translation>Exporter les données du réseau</translation>
    </message>
    <message>
        <source>Refresh network data</source>
        <translation>Actualiser les données du réseau</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Recherche en cours</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <extracomment>%1 is a time before now, as in &quot;5 sec. ago&quot;.</extracomment>
        <translation>Vu %1</translation>
    </message>
</context>
<context>
    <name>aerolith::MainWindow</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Wi-Fi interface information</source>
        <translation>Informations sur l’interface Wi-Fi</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>Masquer la barre latérale</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>Afficher la barre latérale</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkDetailView</name>
    <message>
        <source>Network details</source>
        <translation>Détails du réseau</translation>
    </message>
    <message>
        <source>Signal Overview</source>
        <translation>Aperçu du signal</translation>
    </message>
    <message>
        <source>Network Information</source>
        <translation>Informations sur le réseau</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkInfoDialog</name>
    <message>
        <source>Network Interface Information</source>
        <translation>Informations sur l’interface réseau</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Ouvrir les paramètres réseau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>aerolith::PasswordDialog</name>
    <message>
        <source>Connect to %1</source>
        <translation>Se connecter à %1</translation>
    </message>
    <message>
        <source>Enter the network password:</source>
        <translation>Saisissez le mot de passe du réseau&#xa0;:</translation>
    </message>
    <message>
        <source>Network password</source>
        <translation>Mot de passe du réseau</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connexion en cours</translation>
    </message>
</context>
<context>
    <name>aerolith::SettingsView</name>
    <message>
        <source>Start at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Scan Settings</source>
        <translation>Paramètres de recherche</translation>
    </message>
    <message>
        <source>Scan Interval</source>
        <translation>Intervalle de recherche</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>The scan interval beside its slider: seconds, in as little room as there is.</extracomment>
        <translation>%1&#xa0;s</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>History Points</source>
        <translation>Points d’historique</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n point</numerusform>
            <numerusform>%n points</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>aerolith::Sidebar</name>
    <message>
        <source>Networks</source>
        <translation>Réseaux</translation>
    </message>
    <message>
        <source>All Networks</source>
        <translation>Tous les réseaux</translation>
    </message>
    <message>
        <source>Hiding Hidden</source>
        <translation>Sans les réseaux masqués</translation>
    </message>
    <message numerus="yes">
        <source>%n Networks</source>
        <translation>
            <numerusform>%n réseau</numerusform>
            <numerusform>%n réseaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Network</source>
        <translation>Afficher le réseau</translation>
    </message>
    <message>
        <source>Hide Network</source>
        <translation>Masquer le réseau</translation>
    </message>
</context>
<context>
    <name>aerolith::SidebarStatusBar</name>
    <message>
        <source>Export network list</source>
        <translation>Exporter la liste des réseaux</translation>
    </message>
    <message>
        <source>Clear network list</source>
        <translation>Vider la liste des réseaux</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Signal Strength</source>
        <translation>Puissance du signal</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Nom du réseau</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Security Type</source>
        <translation>Type de sécurité</translation>
    </message>
</context>
<context>
    <name>aerolith::StatusMenuController</name>
    <message>
        <source>WiFi</source>
        <translation>Wi-Fi</translation>
    </message>
</context>
<context>
    <name>aerolith::StatusMenuView</name>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Recherche en cours</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Réseaux</translation>
    </message>
    <message>
        <source>Open App</source>
        <translation>Ouvrir l’application</translation>
    </message>
</context>
<context>
    <name>aerolith::ToolsButton</name>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Wi-Fi Settings...</source>
        <translation>Paramètres Wi-Fi…</translation>
    </message>
    <message>
        <source>Wireless Diagnostics...</source>
        <translation>Diagnostic Wi-Fi…</translation>
    </message>
</context>
<context>
    <name>aerolith::UpdateDialog</name>
    <message>
        <source>Check once a day automatically</source>
        <translation>Rechercher automatiquement une fois par jour</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Téléchargé</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Recherche en cours</translation>
    </message>
</context>
</TS>
