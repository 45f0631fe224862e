<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Gli account sono gestiti dal servizio cloud, che questa versione non è ancora in grado di raggiungere. «Accesso locale» non richiede alcun account.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Accedere ora.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrazione</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Reimposta password</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>Account già registrato?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>Si ricorda la password?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Codice di errore:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Dispositivo:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Informazioni:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>Log di debug</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Modalità debug attiva, in attesa di dati da registrare</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Elimina dispositivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Errore di rete</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>Questa versione non carica ancora dispositivi dal cloud.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Sconosciuto:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Riproduci tutti</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Ferma tutti</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
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
        <translation>Sincronizza la linea temporale</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Attiva audio</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Non ancora in questa versione</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Parla</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Modifica dispositivo</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Reimposta connessione</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Cartella registrazioni</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Cartella istantanee</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Elimina dispositivo</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>Impossibile risolvere il nome di dominio</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>Modulo già inizializzato</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Creazione dei mutex non riuscita</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Creazione dei thread non riuscita</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Creazione dei socket non riuscita</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Impostazione delle opzioni dei socket non riuscita</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Associazione (bind) dei socket non riuscita</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Accesso già effettuato</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>Modulo non inizializzato</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Tempo scaduto</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SID non valido</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Dispositivo sconosciuto</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Impossibile ottenere l’indirizzo IP locale</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Già avviato</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Numero massimo di sessioni raggiunto</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>Impossibile individuare il dispositivo specificato</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>Sessione già chiusa</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Timeout della sessione</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Connessione a un dispositivo non riuscita</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>Canale non attivato</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>Il client ha interrotto la connessione</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Numero di server master specificati insufficiente</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>Autenticazione di un client non riuscita</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>Numero massimo di canali per sessione raggiunto</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>Impossibile connettersi</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>Il client non supporta questa modalità</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>Il dispositivo non supporta questa modalità</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>Il dispositivo ha terminato questa connessione</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Autorizzazione mancante</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Rete non raggiungibile</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>Il client non è riuscito a connettersi al dispositivo</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Accesso del dispositivo o connessione del client non riusciti</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Accesso duplicato, connessione forse impossibile</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>Argomenti non validi</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>Il dispositivo non supporta la codifica parziale</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Numero di sessioni di connessione superato</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Funzione bloccata, in attesa</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Sessione chiusa</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Dimensione del buffer superata</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>Funzione non supportata</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>Impossibile trovare un percorso per scrivere i dati</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>La funzione di avvio non è stata chiamata</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Elaborazione già in corso</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria esaurita</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>Il dispositivo è stato escluso e bloccato</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>Il server master non risponde</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>Problema di risorse del modulo</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>La coda di invio è piena</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>Funzione non supportata</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>Il dispositivo è in modalità di sospensione</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>Funzione non supportata</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>La funzione di inizializzazione del risveglio non è stata chiamata</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Dispositivo offline</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Server master non valido</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Argomenti errati</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>Il buffer è troppo piccolo</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>Numero massimo di canali raggiunto</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Memoria insufficiente</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>Dimensione del buffer di invio superata</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>Il client non è avviato</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Account di visualizzazione o password errati</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>Sessione non valida</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>Il tempo di attesa è scaduto</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>Non pronto per la ricezione</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Alcune parti di un fotogramma sono andate perse</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>L’intero fotogramma è andato perso</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>La sessione remota è già chiusa</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Sessione disconnessa</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>Server terminato</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>Client terminato</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>Il modulo non è stato inizializzato</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>Il client non può inviare dati</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Invio già in corso</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>L’invio è stato interrotto </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>Lunghezza della password errata</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>La sessione è stata chiusa</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Modulo deinizializzato</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>Canale già in uso</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>In attesa del fotogramma chiave</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Reimpostazione del buffer</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>La coda è piena</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>Il modulo è già inizializzato</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Svuotamento del buffer </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Riprovare tra un minuto.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>L’account in uso non è quello dell’utente principale del dispositivo.</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>Il dispositivo non appartiene all’account in uso</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>Il dispositivo è già associato</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat è già associato; accedere tramite WeChat e annullare l’associazione</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>Nessun accesso tramite e-mail o cellulare</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>Errore di sistema. Impossibile inviare l’e-mail</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>Errore di oggetto di sistema.</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>Codice già inviato; controllare i messaggi o richiederlo di nuovo tra 10 minuti</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>Verificare il codice o richiederlo di nuovo tra 1 minuto</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>L’indirizzo e-mail non esiste.</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Formato del numero di telefono errato</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>Il numero di telefono esiste già.</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>Il numero di telefono non esiste.</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>L’indirizzo e-mail esiste già.</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>L’account non esiste.</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Formato dell’indirizzo e-mail errato.</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>Il nome utente non è conforme alle regole.</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>La password non è conforme alle regole.</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>Utente non attivato</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>L’accesso con impronta digitale non è attivato</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>Il codice QR è scaduto</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>Il codice è scaduto</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>Il codice di verifica è errato</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>I dati non esistono.</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>I dati esistono già.</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Errore di eliminazione</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Errore di aggiornamento</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>Errore di aggiunta</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>Nickname già in uso</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>Il link è scaduto.</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Effettuare di nuovo l’accesso. Errore del token</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>Autorizzazione di accesso mancante.</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Verificare l’URL della richiesta.</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Errore del database.</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Parametri errati.</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>Sistema in manutenzione.</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>Versione dell’app obsoleta; aggiornarla.</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Errore di interrogazione del database</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Errore di caricamento del file</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>Non è consentito passare a una versione precedente</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>L’area deve corrispondere</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Le regole di archiviazione non possono essere modificate durante il periodo di validità</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>L’autorizzazione è scaduta</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>Nessuna informazione su questa versione.</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>Impossibile ottenere l’URL.</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>Nessun aggiornamento.</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Nome file errato</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Questa versione non supporta la funzione.</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Errore durante un’operazione sul file</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>Il file da scaricare non esiste.</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Numero cliente o segreto cliente errato</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Verificare la configurazione: numero cliente e segreto cliente mancanti</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>Il codice di autorizzazione non esiste. Ripetere l’autorizzazione</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>Il metodo di richiesta è errato. Contattare lo sviluppatore</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Configurazione errata, numero cliente errato</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Errore di configurazione. Il valore del percorso è errato</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>tempo scaduto</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>il server ha rifiutato la connessione</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>il server ha chiuso la connessione prematuramente</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>nome host non trovato</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>operazione annullata prima del completamento</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>handshake SSL/TLS non riuscito</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>disconnessione dalla rete</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>roaming verso un altro punto di accesso avviato</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>negato dai criteri della piattaforma</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>raggiunto il limite massimo</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>l’API ha rilevato un reindirizzamento</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>errore di rete sconosciuto</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>il server proxy ha rifiutato la connessione</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>il server proxy ha chiuso la connessione</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>nome host del proxy non trovato</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>tempo scaduto per il proxy</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>il proxy non ha accettato le credenziali fornite</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>errore proxy sconosciuto</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>accesso negato</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>operazione non consentita</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>contenuto remoto non trovato sul server</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>impossibile inviare di nuovo la richiesta</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>conflitto con lo stato attuale</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>la risorsa non è più disponibile</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>errore di contenuto sconosciuto</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>protocollo sconosciuto</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>l’operazione richiesta non è valida</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>rilevato un errore di protocollo</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>il server ha riscontrato una condizione imprevista</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>il server non supporta la funzionalità</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>il server non è in grado di gestire la richiesta</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>errore del server sconosciuto</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>Non gestito:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>errore sconosciuto</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Premi ESC per uscire dallo schermo intero</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>Nessuna registrazione trovata</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>Impossibile configurare la sensibilità del rilevamento intelligente</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>Impossibile configurare la password</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>Non esistono dati video da riprodurre.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>Impossibile configurare la rete wireless</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>La riproduzione remota simultanea non è supportata.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>Il dispositivo non può modificare il fuso orario</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>Impossibile configurare la modalità del rilevamento intelligente</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>Impossibile creare il vertex shader</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>Impossibile creare il fragment shader</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>Impossibile aggiungere il vertex shader</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>Impossibile aggiungere il fragment shader</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>Impossibile collegare gli shader</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>Impossibile attivare gli shader</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>Nessun dispositivo di ingresso trovato.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>Nessuna registrazione trovata</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Comprimi</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Espandi</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Esci da schermo intero</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Schermo intero</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Interrompi registrazione</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Registra</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Istantanea</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Finestre: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Disposizione</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Log di debug</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Videosorveglianza di rete</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Videosorveglianza</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Videosorveglianza di rete</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Videosorveglianza di rete</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Non autenticato</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Dal vivo</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Non ancora in questa versione</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Riproduzione</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Pannello di controllo</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Elenco dispositivi</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>Controllo PTZ</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>Info sistema</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Pagina:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Totale:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Nessuna selezione]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Scorri per caricarne altri</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Non ancora in questa versione</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Aggiungi dispositivo</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>Nessun dispositivo corrisponde alla ricerca</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>L’elenco locale è sempre aggiornato</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>Ancora nessun dispositivo. Il manuale spiega come aggiungere il primo.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Pagina successiva</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>Non ancora in questa versione</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>Riaprire i canali che erano aperti all’ultima chiusura?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64 bit</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32 bit</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>Nessun indirizzo cloud configurato; usare «Accesso locale».</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>Questa versione non può ancora accedere al cloud; usare «Accesso locale».</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Errore di rete</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Mostra o nascondi la password</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Ricorda password</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>Password dimenticata?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Accesso locale</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>Ancora senza account?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Registrarsi ora.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Cinese semplificato</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Cinese tradizionale</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Olandese</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Accesso in corso, attendere...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Inserire il nome utente.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Inserire la password.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Inserire il nome utente</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Inserire la password</translation>
    </message>
</context>
</TS>
