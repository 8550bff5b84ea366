<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BackdropMessage</name>
    <message>
        <source>Location access is required
to scan for networks.

Please enable it
in System Settings.</source>
        <translation>Se necesita acceso a la ubicación
para buscar redes.

Actívelo en la configuración
del sistema.</translation>
    </message>
    <message>
        <source>Select a network to view details</source>
        <translation>Seleccione una red para ver sus detalles</translation>
    </message>
    <message>
        <source>Scanning for networks.
Please wait...</source>
        <translation>Buscando redes.
Espere…</translation>
    </message>
</context>
<context>
    <name>ChartLegend</name>
    <message>
        <source>Signal History</source>
        <translation>Historial de la señal</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruido</translation>
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
        <translation>Ruido: %1 dBm</translation>
    </message>
</context>
<context>
    <name>JoinFailure</name>
    <message>
        <source>The Wi-Fi radio is off</source>
        <translation>La Wi-Fi está apagada</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is gone</source>
        <translation>La interfaz Wi-Fi %1 ya no está presente</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is not available</source>
        <translation>La interfaz Wi-Fi %1 no está disponible</translation>
    </message>
    <message>
        <source>The network&apos;s name is not known</source>
        <translation>No se conoce el nombre de la red</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager no está en ejecución</translation>
    </message>
    <message>
        <source>NetworkManager does not manage the Wi-Fi interface %1</source>
        <translation>NetworkManager no gestiona la interfaz Wi-Fi %1</translation>
    </message>
    <message>
        <source>The network does not let this machine in: the password is probably not correct</source>
        <translation>La red no admite este equipo: probablemente la contraseña no sea correcta</translation>
    </message>
    <message>
        <source>The network does not let this machine in</source>
        <translation>La red no admite este equipo</translation>
    </message>
    <message>
        <source>The password is not correct</source>
        <translation>La contraseña no es correcta</translation>
    </message>
    <message>
        <source>The login that is stored for the network is not correct</source>
        <translation>Las credenciales guardadas para la red no son correctas</translation>
    </message>
    <message>
        <source>The network is out of reach</source>
        <translation>La red está fuera de alcance</translation>
    </message>
    <message>
        <source>The network gave this machine no address</source>
        <translation>La red no ha asignado una dirección a este equipo</translation>
    </message>
    <message>
        <source>The access point broke off the attempt to join</source>
        <translation>El punto de acceso interrumpió el intento de conexión</translation>
    </message>
    <message>
        <source>The access point did not answer in time</source>
        <translation>El punto de acceso no respondió a tiempo</translation>
    </message>
    <message>
        <source>This machine&apos;s Wi-Fi service failed to join the network</source>
        <translation>El servicio Wi-Fi de este equipo no pudo conectarse a la red</translation>
    </message>
    <message>
        <source>The Wi-Fi interface is gone</source>
        <translation>La interfaz Wi-Fi ya no está presente</translation>
    </message>
    <message>
        <source>Networking was switched off, or the machine went to sleep</source>
        <translation>Se desactivó la red o el equipo entró en suspensión</translation>
    </message>
    <message>
        <source>The attempt to join was ended from elsewhere</source>
        <translation>Se terminó el intento de conexión desde otro lugar</translation>
    </message>
    <message>
        <source>Another connection was started meanwhile</source>
        <translation>Mientras tanto se inició otra conexión</translation>
    </message>
    <message>
        <source>NetworkManager failed to join the network, for its reason number %1</source>
        <translation>NetworkManager no pudo conectarse a la red (motivo número %1)</translation>
    </message>
    <message>
        <source>The system does not permit this user to join networks</source>
        <translation>El sistema no permite a este usuario conectarse a redes</translation>
    </message>
    <message>
        <source>NetworkManager ended during the attempt to join</source>
        <translation>NetworkManager se detuvo durante el intento de conexión</translation>
    </message>
    <message>
        <source>The attempt to join was stopped</source>
        <translation>Se canceló el intento de conexión</translation>
    </message>
    <message>
        <source>The network gave this machine no address in time</source>
        <translation>La red no asignó a tiempo una dirección a este equipo</translation>
    </message>
    <message>
        <source>Joining the network took too long</source>
        <translation>La conexión a la red tardó demasiado</translation>
    </message>
    <message>
        <source>The network asks for a login of its own kind, which has to be set up in the system&apos;s network settings first</source>
        <translation>La red requiere un inicio de sesión propio, que primero debe configurarse en los ajustes de red del sistema</translation>
    </message>
    <message>
        <source>The network needs a password</source>
        <translation>La red necesita una contraseña</translation>
    </message>
    <message>
        <source>The password is not correct: it holds a character that cannot be part of one</source>
        <translation>La contraseña no es correcta: contiene un carácter no permitido</translation>
    </message>
    <message>
        <source>The password is not correct: a WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits</source>
        <translation>La contraseña no es correcta: una clave WEP tiene 5 o 13 caracteres, o 10 o 26 dígitos hexadecimales</translation>
    </message>
    <message>
        <source>The password is not correct: it has 8 to 63 characters, or 64 hexadecimal digits</source>
        <translation>La contraseña no es correcta: tiene de 8 a 63 caracteres, o 64 dígitos hexadecimales</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager no responde</translation>
    </message>
    <message>
        <source>NetworkManager does not permit this: %1</source>
        <translation>NetworkManager no lo permite: %1</translation>
    </message>
    <message>
        <source>NetworkManager cannot do this now: %1</source>
        <translation>NetworkManager no puede hacerlo ahora: %1</translation>
    </message>
    <message>
        <source>NetworkManager does not know the device: %1</source>
        <translation>NetworkManager no conoce el dispositivo: %1</translation>
    </message>
    <message>
        <source>NetworkManager gave an answer of a wrong type: %1</source>
        <translation>NetworkManager dio una respuesta de tipo incorrecto: %1</translation>
    </message>
    <message>
        <source>NetworkManager reports an error: %1</source>
        <translation>NetworkManager informa de un error: %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Aerolith</source>
        <translation>Acerca de Aerolith</translation>
    </message>
    <message>
        <source>Aerolith %1</source>
        <translation>Aerolith %1</translation>
    </message>
    <message>
        <source>Wi-Fi survey for the Linux desktop.
Free software under the MIT License.</source>
        <translation>Análisis Wi-Fi para el escritorio Linux.
Software libre con licencia MIT.</translation>
    </message>
    <message>
        <source>&amp;Aerolith</source>
        <translation>&amp;Aerolith</translation>
    </message>
    <message>
        <source>&amp;About Aerolith</source>
        <translation>&amp;Acerca de Aerolith</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>Mostrar/ocultar la &amp;barra lateral</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Contact &amp;Support</source>
        <translation>Contactar con &amp;soporte</translation>
    </message>
</context>
<context>
    <name>NetworkDetails</name>
    <message>
        <source>Received Signal Strength Indicator - measures how strong the WiFi signal is</source>
        <translation>Received Signal Strength Indicator: mide la intensidad de la señal Wi-Fi</translation>
    </message>
    <message>
        <source>Background interference level that can affect signal quality</source>
        <translation>Nivel de interferencia de fondo que puede afectar a la calidad de la señal</translation>
    </message>
    <message>
        <source>Signal-to-Noise Ratio - higher values mean better signal quality</source>
        <translation>Relación señal-ruido: cuanto más alto es el valor, mejor es la calidad de la señal</translation>
    </message>
    <message>
        <source>Network name broadcast by the access point</source>
        <translation>Nombre de la red difundido por el punto de acceso</translation>
    </message>
    <message>
        <source>Unique identifier (MAC address) of the access point</source>
        <translation>Identificador único (dirección MAC) del punto de acceso</translation>
    </message>
    <message>
        <source>WiFi channel number used for transmission</source>
        <translation>Número del canal Wi-Fi usado para la transmisión</translation>
    </message>
    <message>
        <source>Frequency band used by the network (2.4 GHz or 5 GHz)</source>
        <translation>Banda de frecuencia usada por la red (2,4 GHz o 5 GHz)</translation>
    </message>
    <message>
        <source>Width of the frequency channel - wider channels can provide higher speeds</source>
        <translation>Ancho del canal de frecuencia: los canales más anchos pueden ofrecer mayor velocidad</translation>
    </message>
    <message>
        <source>Security protocol used to protect the network</source>
        <translation>Protocolo de seguridad que protege la red</translation>
    </message>
    <message>
        <source>Country code defining regional WiFi regulations</source>
        <translation>Código de país que define la normativa Wi-Fi regional</translation>
    </message>
    <message>
        <source>Time between router beacon transmissions in milliseconds</source>
        <translation>Tiempo entre las balizas del enrutador, en milisegundos</translation>
    </message>
    <message>
        <source>Infrastructure networks use access points, Ad-Hoc are direct device-to-device</source>
        <translation>Las redes de infraestructura usan puntos de acceso; las redes ad hoc conectan los dispositivos directamente</translation>
    </message>
    <message>
        <source>Supported WiFi standards and transmission modes</source>
        <translation>Estándares Wi-Fi y modos de transmisión admitidos</translation>
    </message>
    <message>
        <source>latest %1 dBm</source>
        <translation>último %1 dBm</translation>
    </message>
    <message>
        <source>lowest %1 dBm</source>
        <translation>mínimo %1 dBm</translation>
    </message>
    <message>
        <source>highest %1 dBm</source>
        <translation>máximo %1 dBm</translation>
    </message>
    <message>
        <source>1 sample</source>
        <translation>1 muestra</translation>
    </message>
    <message numerus="yes">
        <source>%n samples</source>
        <translation>
            <numerusform>%n muestra</numerusform>
            <numerusform>%n muestras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NetworkRowInMenu</name>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>%1, joined</source>
        <translation>%1, conectada</translation>
    </message>
    <message>
        <source>Connect to %1, %2</source>
        <extracomment>%1 is a network, %2 its security.</extracomment>
        <translation>Conectar a %1, %2</translation>
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
        <translation>%1 de %2 barras</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>conectada</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>oculta</translation>
    </message>
</context>
<context>
    <name>NetworkTexts</name>
    <message>
        <source>Open</source>
        <extracomment>The security of a network that anybody may join.</extracomment>
        <translation>Abierta</translation>
    </message>
    <message>
        <source>Secure</source>
        <extracomment>The security of a network by some means that has no short name.</extracomment>
        <translation>Segura</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>The band of a network.</extracomment>
        <translation>Desconocida</translation>
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
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Aerolith is up to date</source>
        <translation>Aerolith está actualizado</translation>
    </message>
    <message>
        <source>There is nothing newer than version %1.</source>
        <translation>No hay nada más reciente que la versión %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Aerolith %1 is available</source>
        <translation>Aerolith %1 está disponible</translation>
    </message>
    <message>
        <source>You have version %1. The download is %2.</source>
        <translation>Tiene la versión %1. La descarga ocupa %2.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Downloading Aerolith %1…</source>
        <translation>Descargando Aerolith %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Aerolith %1 is downloaded</source>
        <translation>Aerolith %1 se ha descargado</translation>
    </message>
    <message>
        <source>Its signature is right. It was saved as
%1</source>
        <translation>La firma es correcta. Se ha guardado como
%1</translation>
    </message>
    <message>
        <source>Updates could not be checked</source>
        <translation>No se pudieron buscar actualizaciones</translation>
    </message>
    <message>
        <source>The update was not downloaded</source>
        <translation>La actualización no se ha descargado</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>UpdateFailure</name>
    <message>
        <source>The update feed cannot be read: %1</source>
        <translation>No se puede leer la fuente de actualizaciones: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>No se puede crear la carpeta %1</translation>
    </message>
    <message>
        <source>Nothing can be saved in %1: %2</source>
        <translation>No se puede guardar nada en %1: %2</translation>
    </message>
    <message>
        <source>%1 has been silent for %2 seconds</source>
        <translation>%1 no responde desde hace %2 segundos</translation>
    </message>
    <message>
        <source>%1 was not done after %2 seconds</source>
        <translation>%1 no había terminado tras %2 segundos</translation>
    </message>
    <message>
        <source>%1 answered with the HTTP status %2</source>
        <translation>%1 respondió con el estado HTTP %2</translation>
    </message>
    <message>
        <source>%1 redirects to an address that is not https: %2</source>
        <translation>%1 redirige a una dirección que no es https: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 redirects more than %n times</source>
        <translation>
            <numerusform>%1 redirige más de %n vez</numerusform>
            <numerusform>%1 redirige más de %n veces</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no secure connection to %1: %2</source>
        <translation>No hay una conexión segura con %1: %2</translation>
    </message>
    <message>
        <source>The connection to %1 ended after %2 bytes: %3</source>
        <translation>La conexión con %1 terminó tras %2 bytes: %3</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>No se puede acceder a %1: %2</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that it should have</source>
        <translation>El archivo supera los %1 bytes que debería tener</translation>
    </message>
    <message>
        <source>The file has %1 bytes in place of the %2 that it should have</source>
        <translation>El archivo tiene %1 bytes en lugar de los %2 que debería tener</translation>
    </message>
    <message>
        <source>The file&apos;s signature is wrong: it does not come from the makers of Aerolith</source>
        <translation>La firma del archivo es incorrecta: no procede de los autores de Aerolith</translation>
    </message>
</context>
<context>
    <name>WiFiConnectionManager</name>
    <message>
        <source>Connection Failed</source>
        <translation>Error de conexión</translation>
    </message>
</context>
<context>
    <name>XdgWorkspace</name>
    <message>
        <source>Cannot open a tool for network diagnostics: not installed: %1</source>
        <translation>No hay instalada ninguna herramienta de diagnóstico de red: %1</translation>
    </message>
</context>
<context>
    <name>aerolith::Alert</name>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
</context>
<context>
    <name>aerolith::Announcer</name>
    <message>
        <source>Scan failed</source>
        <translation>La búsqueda ha fallado</translation>
    </message>
    <message>
        <source>Scan finished: 1 network</source>
        <translation>Búsqueda terminada: 1 red</translation>
    </message>
    <message numerus="yes">
        <source>Scan finished: %n networks</source>
        <translation>
            <numerusform>Búsqueda terminada: %n red</numerusform>
            <numerusform>Búsqueda terminada: %n redes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>aerolith::CheckForUpdatesView</name>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
</context>
<context>
    <name>aerolith::CustomSignalChart</name>
    <message>
        <source>Signal History</source>
        <translation>Historial de la señal</translation>
    </message>
</context>
<context>
    <name>aerolith::DetailStatusBar</name>
    <message>
        <source>Export network data</source>
        <translation>Exportar datos de la red</translation>
    </message>
    <message>
        <source>Refresh network data</source>
        <translation>Actualizar los datos de la red</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <extracomment>%1 is a time before now, as in &quot;5 sec. ago&quot;.</extracomment>
        <translation>Vista por última vez %1</translation>
    </message>
</context>
<context>
    <name>aerolith::MainWindow</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Wi-Fi interface information</source>
        <translation>Información de la interfaz Wi-Fi</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>Ocultar la barra lateral</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>Mostrar la barra lateral</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkDetailView</name>
    <message>
        <source>Network details</source>
        <translation>Detalles de la red</translation>
    </message>
    <message>
        <source>Signal Overview</source>
        <translation>Resumen de la señal</translation>
    </message>
    <message>
        <source>Network Information</source>
        <translation>Información de la red</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkInfoDialog</name>
    <message>
        <source>Network Interface Information</source>
        <translation>Información de la interfaz de red</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>Abrir la configuración de red</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>aerolith::PasswordDialog</name>
    <message>
        <source>Connect to %1</source>
        <translation>Conectar a %1</translation>
    </message>
    <message>
        <source>Enter the network password:</source>
        <translation>Introduzca la contraseña de la red:</translation>
    </message>
    <message>
        <source>Network password</source>
        <translation>Contraseña de la red</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
</context>
<context>
    <name>aerolith::SettingsView</name>
    <message>
        <source>Start at login</source>
        <translation>Iniciar al entrar en la sesión</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Scan Settings</source>
        <translation>Configuración de la búsqueda</translation>
    </message>
    <message>
        <source>Scan Interval</source>
        <translation>Intervalo de búsqueda</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>The scan interval beside its slider: seconds, in as little room as there is.</extracomment>
        <translation>%1 s</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>History Points</source>
        <translation>Puntos del historial</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n punto</numerusform>
            <numerusform>%n puntos</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>aerolith::Sidebar</name>
    <message>
        <source>Networks</source>
        <translation>Redes</translation>
    </message>
    <message>
        <source>All Networks</source>
        <translation>Todas las redes</translation>
    </message>
    <message>
        <source>Hiding Hidden</source>
        <translation>Sin las ocultas</translation>
    </message>
    <message numerus="yes">
        <source>%n Networks</source>
        <translation>
            <numerusform>%n red</numerusform>
            <numerusform>%n redes</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Network</source>
        <translation>Mostrar la red</translation>
    </message>
    <message>
        <source>Hide Network</source>
        <translation>Ocultar la red</translation>
    </message>
</context>
<context>
    <name>aerolith::SidebarStatusBar</name>
    <message>
        <source>Export network list</source>
        <translation>Exportar la lista de redes</translation>
    </message>
    <message>
        <source>Clear network list</source>
        <translation>Vaciar la lista de redes</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Signal Strength</source>
        <translation>Intensidad de la señal</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>Nombre de la red</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Security Type</source>
        <translation>Tipo de seguridad</translation>
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
        <translation>Buscando</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>Redes</translation>
    </message>
    <message>
        <source>Open App</source>
        <translation>Abrir la aplicación</translation>
    </message>
</context>
<context>
    <name>aerolith::ToolsButton</name>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Wi-Fi Settings...</source>
        <translation>Configuración de Wi-Fi…</translation>
    </message>
    <message>
        <source>Wireless Diagnostics...</source>
        <translation>Diagnóstico inalámbrico…</translation>
    </message>
</context>
<context>
    <name>aerolith::UpdateDialog</name>
    <message>
        <source>Check once a day automatically</source>
        <translation>Buscar automáticamente una vez al día</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Novedades</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descargado</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Comprobando</translation>
    </message>
</context>
</TS>
