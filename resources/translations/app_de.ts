<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Konten werden vom Cloud-Dienst verwaltet, den diese Version noch nicht erreicht. „Lokale Anmeldung“ erfordert kein Konto.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Jetzt anmelden.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Passwort zurücksetzen</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>Bereits registriert?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>Passwort wieder eingefallen?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Fehlercode:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Gerät:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Information:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>Debug-Protokoll</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Debug-Modus aktiv, warte auf Einträge</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Gerät löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Netzwerkfehler</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>Diese Version lädt noch keine Geräte aus der Cloud.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Unbekannt:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Alle abspielen</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Alle stoppen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
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
        <translation>Zeitleiste synchronisieren</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Ton ein</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Noch nicht Teil dieser Version</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ton aus</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Sprechen</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Gerät bearbeiten</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Verbindung zurücksetzen</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Aufnahmeordner</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Ordner für Schnappschüsse</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Gerät löschen</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>Domainname kann nicht aufgelöst werden</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>Modul ist bereits initialisiert</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Mutexe konnten nicht erstellt werden</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Threads konnten nicht erstellt werden</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Sockets konnten nicht erstellt werden</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Socket-Optionen konnten nicht gesetzt werden</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Sockets konnten nicht gebunden werden</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Bereits angemeldet</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>Modul ist nicht initialisiert</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Zeitüberschreitung</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>Ungültige SID</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Unbekanntes Gerät</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Lokale IP-Adresse konnte nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Bereits gestartet</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Maximale Anzahl an Sitzungen erreicht</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>Das angegebene Gerät wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>Sitzung ist bereits geschlossen</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Zeitüberschreitung der Sitzung</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Verbindung zum Gerät fehlgeschlagen</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>Kanal ist nicht aktiviert</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>Client hat den Verbindungsaufbau abgebrochen</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Zu wenige Master-Server angegeben</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>Authentifizierung des Clients fehlgeschlagen</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>Maximale Anzahl an Kanälen pro Sitzung erreicht</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>Verbindung nicht möglich</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>Client unterstützt diesen Modus nicht</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>Gerät unterstützt diesen Modus nicht</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>Gerät hat diese Verbindung beendet</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Netzwerk nicht erreichbar</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>Client konnte keine Verbindung zum Gerät herstellen</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Geräteanmeldung oder Client-Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Doppelte Anmeldung; Verbindung eventuell nicht möglich</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>Ungültige Argumente</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>Gerät unterstützt keine Teilcodierung</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Zu viele Verbindungssitzungen</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Funktion blockiert, bitte warten</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Sitzung geschlossen</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Puffergröße überschritten</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>Diese Funktion wird nicht unterstützt</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>Kein Pfad zum Schreiben der Daten gefunden</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>Startfunktion wurde nicht aufgerufen</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Wird bereits verarbeitet</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Kein Speicher mehr verfügbar</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>Das Gerät wurde blockiert und gesperrt</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>Master-Server antwortet nicht</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>Modul hat ein Ressourcenproblem</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>Sendewarteschlange ist voll</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>Die Funktion wird nicht unterstützt</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>Gerät ist im Ruhezustand</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>Diese Funktion wird nicht unterstützt</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>WakeUp-Initialisierung wurde nicht aufgerufen</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Gerät offline</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Ungültiger Master-Server</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Falsche Argumente</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>Puffer ist zu klein</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>Maximale Anzahl an Kanälen erreicht</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Nicht genügend Speicher</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>Zu sendender Puffer ist zu groß</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Antwortet nicht</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>Client ist nicht gestartet</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Betrachterkonto oder Passwort falsch</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>Sitzung ist ungültig</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>Wartezeit abgelaufen</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>Nicht empfangsbereit</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Teile eines Frames sind verloren gegangen</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>Der gesamte Frame ist verloren gegangen</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>Die Sitzung der Gegenstelle ist bereits geschlossen</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Sitzung ist getrennt</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>Server beendet</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>Client beendet</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>Modul wurde noch nicht initialisiert</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>Client kann keine Daten senden</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Wird bereits gesendet</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>Senden wurde abgebrochen </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>Falsche Passwortlänge</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>Sitzung wurde geschlossen</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Modul wurde deinitialisiert</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>Kanal ist belegt</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>Warten auf Keyframe</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Puffer zurücksetzen</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>Warteschlange ist voll</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>Modul ist bereits initialisiert</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Puffer leeren </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Bitte versuchen Sie es in einer Minute erneut.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>Sie sind nicht der Hauptbenutzer des Geräts</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>Das Gerät gehört nicht Ihnen</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>Gerät ist bereits verknüpft</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat ist bereits verknüpft. Bitte melden Sie sich über WeChat an und heben Sie die Verknüpfung auf.</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>Nicht mit E-Mail-Adresse oder Mobilnummer angemeldet</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>Systemfehler: E-Mail kann nicht gesendet werden</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>Systemobjektfehler</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>Der Code wurde bereits gesendet. Bitte prüfen Sie Ihre Nachrichten oder fordern Sie ihn in 10 Minuten erneut an.</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>Bitte prüfen Sie den Code oder fordern Sie ihn in 1 Minute erneut an.</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>E-Mail-Adresse existiert nicht</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Ungültiges Format der Telefonnummer</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>Telefonnummer existiert bereits</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>Telefonnummer existiert nicht</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>E-Mail-Adresse existiert bereits</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>Konto existiert nicht</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Ungültiges Format der E-Mail-Adresse</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>Benutzername entspricht nicht den Vorgaben</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>Passwort entspricht nicht den Vorgaben</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>Benutzer ist nicht aktiviert</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>Anmeldung per Fingerabdruck ist nicht aktiviert</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>Der QR-Code ist abgelaufen</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>Der Code ist abgelaufen</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>Der Bestätigungscode ist falsch</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>Daten existieren nicht</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>Daten existieren bereits</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Löschen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Aktualisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>Hinzufügen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>Anzeigename ist bereits vergeben</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>Der Link ist abgelaufen</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Bitte melden Sie sich erneut an. Token-Fehler</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>Sie haben hierfür keine Zugriffsberechtigung</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Bitte prüfen Sie die angeforderte URL.</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Datenbankfehler</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Falsche Parameter</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>System wird gewartet</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>App-Version zu alt, bitte aktualisieren Sie die App.</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Datenbankabfrage fehlgeschlagen</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Datei-Upload fehlgeschlagen</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Die Datei existiert nicht</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>Downgrade nicht zulässig</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>Regionen müssen übereinstimmen</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Speicherregeln können während der Gültigkeitsdauer nicht geändert werden</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>Autorisierung abgelaufen</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>Keine Informationen zu dieser Version vorhanden</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>URL konnte nicht abgerufen werden</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>Kein Update verfügbar</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Falscher Dateiname</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Diese Version unterstützt die Funktion nicht</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Fehler durch Dateioperation</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>Die herunterzuladende Datei existiert nicht</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Kundennummer oder Kundenschlüssel falsch</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Prüfen Sie die Konfiguration: Kundennummer oder Kundenschlüssel fehlt</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>Der Autorisierungscode existiert nicht. Bitte autorisieren Sie erneut.</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>Falsche Anfragemethode. Bitte wenden Sie sich an den Entwickler.</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Falsche Konfiguration: falsche Kundennummer</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Konfigurationsfehler. Der Pfadwert ist falsch.</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>Zeitüberschreitung</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>Server hat die Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>Server hat die Verbindung vorzeitig beendet</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>Hostname wurde nicht gefunden</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>vor Abschluss abgebrochen</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>SSL/TLS-Handshake fehlgeschlagen</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>Verbindung zum Netzwerk getrennt</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>Wechsel zu anderem Access Point eingeleitet</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>durch Plattformrichtlinie nicht zulässig</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>die Höchstgrenze wurde erreicht</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>API hat eine Umleitung erkannt</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>unbekannter Netzwerkfehler</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>Proxy-Server hat die Verbindung abgelehnt</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>Proxy-Server hat die Verbindung beendet</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>Hostname des Proxys wurde nicht gefunden</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>Zeitüberschreitung beim Proxy</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>Proxy hat die Anmeldedaten nicht akzeptiert</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>unbekannter Proxy-Fehler</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>Vorgang nicht zulässig</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>Inhalt auf dem Server nicht gefunden</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>Anfrage kann nicht erneut gesendet werden</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>Konflikt mit dem aktuellen Zustand</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>Ressource ist nicht mehr verfügbar</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>unbekannter Inhaltsfehler</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>das Protokoll ist unbekannt</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>der angeforderte Vorgang ist ungültig</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>ein Protokollfehler wurde erkannt</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>unerwarteter Zustand auf dem Server</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>Server unterstützt diese Funktion nicht</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>Server kann die Anfrage nicht bearbeiten</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>unbekannter Serverfehler</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>Nicht behandelt:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Mit ESC das Vollbild verlassen</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>Es wurde keine Aufzeichnung gefunden</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>Die Empfindlichkeit der intelligenten Erkennung konnte nicht eingestellt werden</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>Das Passwort konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>Zu diesem Zeitpunkt gibt es keine Aufzeichnung.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>Das WLAN konnte nicht eingerichtet werden</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>Gleichzeitige Wiedergabe mehrerer Kanäle wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>Das Gerät kann die Zeitzone nicht ändern</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>Der Modus der intelligenten Erkennung konnte nicht eingestellt werden</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>Vertex-Shader konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>Fragment-Shader konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>Vertex-Shader konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>Fragment-Shader konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>Shader konnten nicht gelinkt werden</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>Shader konnten nicht gebunden werden</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>Kein Eingabegerät gefunden.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>Es wurde keine Aufzeichnung gefunden</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Einklappen</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Ausklappen</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Vollbild beenden</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Aufnahme beenden</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Schnappschuss</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Fenster: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Aufteilung</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Debug-Protokoll</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Netzwerk-Videoüberwachung</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Videoüberwachung</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Netzwerk-Videoüberwachung</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Netzwerk-Videoüberwachung</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Nicht angemeldet</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Noch nicht Teil dieser Version</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Systemsteuerung</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Geräteliste</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>PTZ-Steuerung</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>Systeminfo</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Seite:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Gesamt:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Nicht ausgewählt]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Für mehr nach unten ziehen</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Noch nicht Teil dieser Version</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Gerät hinzufügen</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>Kein Gerät passt zur Suche</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>Die lokale Liste ist immer aktuell</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>Noch keine Geräte. Das Benutzerhandbuch erklärt, wie das erste hinzugefügt wird.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>Noch nicht Teil dieser Version</translation>
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
        <translation>Abspielen</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>Sollen die Kanäle wieder geöffnet werden, die beim letzten Schließen offen waren?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64-Bit</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32-Bit</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>Keine Cloud-Adresse konfiguriert; „Lokale Anmeldung“ verwenden.</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>Noch keine Cloud-Anmeldung in dieser Version; „Lokale Anmeldung“ verwenden.</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Netzwerkfehler</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Passwort ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Passwort merken</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>Passwort vergessen?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Lokale Anmeldung</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>Noch kein Konto?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Jetzt registrieren.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chinesisch (traditionell)</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Niederländisch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Anmeldung läuft, bitte warten...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Bitte geben Sie den Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Bitte geben Sie das Passwort ein.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Benutzernamen eingeben</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Passwort eingeben</translation>
    </message>
</context>
</TS>
