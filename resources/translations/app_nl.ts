<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Accounts worden beheerd door de clouddienst, die in deze versie nog niet bereikbaar is. Voor ‘Lokaal inloggen’ is geen account nodig.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Nu inloggen.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registreren</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Wachtwoord resetten</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>Al een account?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>Wachtwoord weer bekend?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Foutcode:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Apparaat:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informatie:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>Kanaal</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>Debuglogboek</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Debugmodus actief, wachten op logregels</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Apparaat verwijderen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bevestigen</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Netwerkfout</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>Deze versie laadt nog geen apparaten uit de cloud.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Onbekend:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Alles afspelen</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Alles stoppen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>HD</source>
        <translation>HD</translation>
    </message>
    <message>
        <source>SD</source>
        <translation>SD</translation>
    </message>
    <message>
        <source>Synchronize Timeline</source>
        <translation>Tijdlijn synchroniseren</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Geluid aan</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Nog niet in deze versie</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Spreken</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Apparaat bewerken</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Verbinding herstellen</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Opnamemap</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Map met momentopnamen</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Apparaat verwijderen</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>Geen reactie</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>Kan domeinnaam niet herleiden</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>Module is al geïnitialiseerd</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Aanmaken van mutexen mislukt</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Aanmaken van threads mislukt</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Aanmaken van sockets mislukt</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Instellen van socketopties mislukt</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Binden van sockets mislukt</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Al ingelogd</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>Module is niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Time-out</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>Ongeldige SID</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Onbekend apparaat</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Ophalen van lokaal IP-adres mislukt</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Al gestart</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Maximumaantal sessies bereikt</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>Kan het opgegeven apparaat niet vinden</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>Sessie is al gesloten</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Time-out van sessie</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Verbinden met apparaat mislukt</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>Kanaal is niet ingeschakeld</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>Client heeft het verbinden afgebroken</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Te weinig masterservers opgegeven</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>Authenticatie van client mislukt</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>Maximumaantal kanalen per sessie bereikt</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>Kan geen verbinding maken</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>Client ondersteunt deze modus niet</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>Apparaat ondersteunt deze modus niet</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>Apparaat heeft deze verbinding beëindigd</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Geen toegangsrechten</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Netwerk onbereikbaar</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>Client kan geen verbinding maken met apparaat</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Inloggen op apparaat of verbinden van client mislukt</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Dubbele login; verbinden lukt mogelijk niet</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>Ongeldige argumenten</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>Apparaat ondersteunt gedeeltelijke codering niet</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Te veel verbindingssessies</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Functie blokkeert, even wachten</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Sessie gesloten</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Buffergrootte overschreden</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>Deze functie wordt niet ondersteund</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>Geen pad gevonden om gegevens te schrijven</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>Startfunctie is niet aangeroepen</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Wordt al verwerkt</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Geen geheugen meer beschikbaar</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>Het apparaat is geblokkeerd en vergrendeld</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>Masterserver reageert niet</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>Module heeft een probleem met systeembronnen</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>Verzendwachtrij is vol</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>De functie wordt niet ondersteund</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>Apparaat staat in slaapstand</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>Deze functie wordt niet ondersteund</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>Initialisatiefunctie voor WakeUp is niet aangeroepen</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Apparaat offline</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Ongeldige masterserver</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Onjuiste argumenten</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>Buffer is te klein</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>Maximumaantal kanalen bereikt</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Onvoldoende geheugen</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>Te verzenden buffer is te groot</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Reageert niet</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>Client is niet gestart</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Weergaveaccount of wachtwoord onjuist</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>Sessie is ongeldig</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>Wachttijd verstreken</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>Niet gereed voor ontvangst</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Delen van een frame zijn verloren gegaan</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>Het hele frame is verloren gegaan</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>De externe sessie is al gesloten</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Sessie is verbroken</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>Server afgesloten</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>Client afgesloten</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>Module is nog niet geïnitialiseerd</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>Client kan geen gegevens verzenden</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Wordt al verzonden</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>Verzenden is afgebroken </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>Onjuiste wachtwoordlengte</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>Sessie is gesloten</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Module is gedeïnitialiseerd</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>Kanaal is in gebruik</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>Wachten op keyframe</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Buffer resetten</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>Wachtrij is vol</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>Module is al geïnitialiseerd</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Buffer leegmaken </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Probeer het over een minuut opnieuw.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>U bent niet de hoofdgebruiker van het apparaat</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>Dit apparaat is niet van u</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>Apparaat is al gekoppeld</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat is al gekoppeld. Log in via WeChat en hef de koppeling op.</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>Niet ingelogd met e-mailadres of mobiel nummer</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>Systeemfout: kan geen e-mail verzenden</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>Systeemobjectfout</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>De code is al verzonden. Controleer uw berichten of vraag over 10 minuten een nieuwe aan.</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>Controleer de code of vraag over 1 minuut een nieuwe aan.</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>E-mailadres bestaat niet</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Ongeldig telefoonnummer</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>Telefoonnummer bestaat al</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>Telefoonnummer bestaat niet</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>E-mailadres bestaat al</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>Account bestaat niet</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Ongeldig e-mailadres</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>Gebruikersnaam voldoet niet aan de regels</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>Wachtwoord voldoet niet aan de regels</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>Gebruiker is niet geactiveerd</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Onjuist wachtwoord</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>Inloggen met vingerafdruk is niet ingeschakeld</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>De QR-code is verlopen</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>De code is verlopen</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>De verificatiecode is onjuist</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>Gegevens bestaan niet</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>Gegevens bestaan al</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Verwijderen mislukt</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Bijwerken mislukt</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>Toevoegen mislukt</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>Bijnaam is al in gebruik</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>De link is verlopen</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Log opnieuw in. Tokenfout</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>U hebt hiervoor geen toegangsrechten</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Controleer de opgevraagde URL.</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Databasefout</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Onjuiste parameters</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>Systeem in onderhoud</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>App-versie is te oud. Werk de app bij.</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Databasequery mislukt</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Uploaden van bestand mislukt</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Het bestand bestaat niet</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>Downgraden is niet toegestaan</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>Regio&apos;s moeten overeenkomen</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Opslagregels kunnen niet worden gewijzigd tijdens de geldigheidsduur</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>Autorisatie verlopen</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>Geen informatie over deze versie</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>Ophalen van URL mislukt</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>Geen update beschikbaar</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Onjuiste bestandsnaam</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Deze functie wordt in deze versie niet ondersteund</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Fout door bestandsbewerking</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>Het te downloaden bestand bestaat niet</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Klantnummer of klantsleutel onjuist</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Controleer uw configuratie: klantnummer of klantsleutel ontbreekt</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>De autorisatiecode bestaat niet. Autoriseer opnieuw.</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>Onjuiste aanvraagmethode. Neem contact op met de ontwikkelaar.</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Onjuiste configuratie: verkeerd klantnummer</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Configuratiefout. De padwaarde is onjuist.</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>time-out van de verbinding</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>server heeft de verbinding geweigerd</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>server heeft de verbinding voortijdig verbroken</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>hostnaam niet gevonden</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>afgebroken vóór voltooiing</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>SSL/TLS-handshake mislukt</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>netwerkverbinding verbroken</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>overschakeling naar ander toegangspunt gestart</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>niet toegestaan door platformbeleid</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>de maximumlimiet is bereikt</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>API heeft een omleiding gedetecteerd</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>onbekende netwerkfout</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>proxyserver heeft de verbinding geweigerd</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>proxyserver heeft de verbinding verbroken</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>hostnaam van proxy niet gevonden</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>time-out van proxy</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>proxy heeft de aanmeldgegevens niet geaccepteerd</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>onbekende proxyfout</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>toegang geweigerd</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>bewerking niet toegestaan</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>inhoud niet gevonden op de server</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>aanvraag kan niet opnieuw worden verzonden</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>conflict met de huidige status</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>bron is niet meer beschikbaar</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>onbekende inhoudsfout</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>het protocol is onbekend</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>de gevraagde bewerking is ongeldig</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>er is een protocolfout gedetecteerd</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>er is een onverwachte fout op de server opgetreden</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>server ondersteunt deze functie niet</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>server kan de aanvraag niet verwerken</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>onbekende serverfout</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>Niet verwerkt:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>onbekende fout</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Druk op ESC om het volledige scherm te verlaten</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>Er is geen opname gevonden</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>De gevoeligheid van de slimme detectie kon niet worden ingesteld</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>Het wachtwoord kon niet worden ingesteld</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>Er bestaan geen videogegevens om af te spelen.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>Het draadloze netwerk kon niet worden ingesteld</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>Gelijktijdig op afstand afspelen wordt niet ondersteund.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>Het apparaat kan de tijdzone niet wijzigen</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>De modus van de slimme detectie kon niet worden ingesteld</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>Vertexshader kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>Fragmentshader kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>Vertexshader kan niet worden toegevoegd</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>Fragmentshader kan niet worden toegevoegd</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>Shaders kunnen niet worden gekoppeld</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>Shaders kunnen niet worden geactiveerd</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>Geen invoerapparaat gevonden.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>Er is geen opname gevonden</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Inklappen</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Uitklappen</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Volledig scherm sluiten</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Volledig scherm</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Opname stoppen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Opnemen</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Momentopname</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Vensters: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Indeling</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Debuglogboek</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Netwerkvideobewaking</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Videobewaking</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Netwerkvideobewaking</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Netwerkvideobewaking</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Niet ingelogd</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Nog niet in deze versie</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Configuratiescherm</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Apparatenlijst</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>PTZ-bediening</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>Systeeminfo</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Pagina:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Totaal:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Niets geselecteerd]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Scrol omlaag voor meer</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Nog niet in deze versie</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Apparaat toevoegen</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>Geen apparaat komt overeen met de zoekopdracht</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>De lokale lijst is altijd actueel</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>Nog geen apparaten. De handleiding legt uit hoe u het eerste toevoegt.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Vorige pagina</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Volgende pagina</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>Nog niet in deze versie</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>Wilt u de kanalen heropenen die bij het laatste afsluiten open waren?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bevestigen</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanaal</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64-bits</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32-bits</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>Geen cloudadres ingesteld; gebruik ‘Lokaal inloggen’.</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>Inloggen bij de cloud kan in deze versie nog niet; gebruik ‘Lokaal inloggen’.</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Netwerkfout</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Wachtwoord tonen of verbergen</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Wachtwoord opslaan</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>Wachtwoord vergeten?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Inloggen</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Lokaal inloggen</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>Nog geen account?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Nu registreren.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Engels</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Chinees (vereenvoudigd)</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chinees (traditioneel)</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Frans</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiaans</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Nederlands</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spaans</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Duits</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japans</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Bezig met inloggen...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Voer de gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Voer het wachtwoord in.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Voer uw gebruikersnaam in</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Voer uw wachtwoord in</translation>
    </message>
</context>
</TS>
