<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Les comptes sont gérés par le service cloud, auquel cette version n’accède pas encore. «&#xa0;Connexion locale&#xa0;» ne nécessite aucun compte.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Connectez-vous.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Réinitialiser le mot de passe</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>Déjà inscrit&#xa0;?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>Mot de passe retrouvé&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Code d’erreur :</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Appareil :</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Information :</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>Journal debug</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Mode debug actif, en attente de données à enregistrer</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Supprimer l’appareil</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Erreur réseau</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>Cette version ne charge pas encore d’appareils depuis le cloud.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Inconnu :</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Tout lire</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Tout arrêter</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
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
        <translation>Synchroniser la chronologie</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Activer le son</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Pas encore dans cette version</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Couper le son</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Parler</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Modifier l’appareil</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Réinitialiser la connexion</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Dossier d’enregistrement</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Dossier des captures</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Supprimer l’appareil</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>Aucune réponse</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>Impossible de résoudre le nom de domaine</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>Module déjà initialisé</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Échec de la création des mutex</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Échec de la création des threads</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Échec de la création des sockets</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Échec de la configuration des options de socket</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Échec de la liaison des sockets</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Identification déjà effectuée</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>Module non initialisé</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Délai dépassé</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SID non valide</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Appareil inconnu</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Échec de l’obtention de l’adresse IP locale</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Déjà démarré</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Nombre maximal de sessions atteint</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>Impossible de localiser l’appareil indiqué</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>Session déjà fermée</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Délai de session dépassé</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Échec de la connexion à un appareil</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>Canal non activé</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>Le client a interrompu la connexion</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Trop peu de serveurs maîtres indiqués</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>Échec de l’authentification d’un client</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>Nombre maximal de canaux par session atteint</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>Connexion impossible</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>Le client ne prend pas en charge ce mode</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>L’appareil ne prend pas en charge ce mode</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>L’appareil a mis fin à cette connexion</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Aucune autorisation</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Réseau inaccessible</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>Le client n’a pas pu se connecter à l’appareil</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Échec de l’identification de l’appareil ou de la connexion du client</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Identification en double, connexion peut-être impossible</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>Arguments non valides</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>L’appareil ne prend pas en charge l’encodage partiel</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Nombre de sessions de connexion dépassé</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Fonction bloquée, en attente</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Session fermée</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Taille de la mémoire tampon dépassée</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>Cette fonction n’est pas prise en charge</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>Aucun chemin trouvé pour écrire les données</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>La fonction de démarrage n’a pas été appelée</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Traitement déjà en cours</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire épuisée</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>L’appareil est banni et verrouillé</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>Le serveur maître ne répond pas</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>Problème de ressources du module</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>La file d’envoi est pleine</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>Cette fonction n’est pas prise en charge</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>L’appareil est en mode veille</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>Cette fonction n’est pas prise en charge</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>La fonction d’initialisation du réveil n’a pas été appelée</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Appareil hors ligne</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Serveur maître non valide</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Arguments incorrects</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>La mémoire tampon est trop petite</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>Nombre maximal de canaux atteint</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>Taille de la mémoire tampon d’envoi dépassée</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Aucune réponse</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>Le client n’est pas démarré</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Compte de visualisation ou mot de passe incorrect</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>Session non valide</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>Le délai d’attente a expiré</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>Pas prêt à recevoir</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Certaines parties d’une image ont été perdues</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>L’image entière a été perdue</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>La session distante est déjà fermée</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Session déconnectée</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>Arrêt du serveur</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>Arrêt du client</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>Le module n’a pas été initialisé</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>Le client ne peut pas envoyer de données</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Envoi déjà en cours</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>L’envoi a été interrompu </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>Longueur du mot de passe incorrecte</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>La session a été fermée</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Module désinitialisé</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>Canal déjà utilisé</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>En attente d’une image clé</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Réinitialisation de la mémoire tampon</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>La file d’attente est pleine</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>Le module est déjà initialisé</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Vidage de la mémoire tampon </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Veuillez réessayer dans une minute.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>Vous n’êtes pas l’utilisateur principal de l’appareil.</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>Cet appareil ne vous appartient pas</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>L’appareil est déjà associé</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat est déjà associé&#xa0;; connectez-vous via WeChat pour le dissocier</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>Aucune connexion par e-mail ou téléphone mobile</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>Erreur système. Impossible d’envoyer l’e-mail</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>Erreur d’objet système.</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>Le code a déjà été envoyé&#xa0;; vérifiez vos messages ou redemandez-le dans 10&#xa0;minutes</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>Vérifiez le code ou redemandez-le dans 1&#xa0;minute</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>L’adresse e-mail n’existe pas.</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Format du numéro de téléphone incorrect</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>Le numéro de téléphone existe déjà.</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>Le numéro de téléphone n’existe pas.</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>L’adresse e-mail existe déjà.</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>Le compte n’existe pas.</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Format de l’adresse e-mail incorrect.</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>Le nom d’utilisateur ne respecte pas les règles.</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>Le mot de passe ne respecte pas les règles.</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>Utilisateur non activé</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>La connexion par empreinte digitale n’est pas activée</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>Le code QR a expiré</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>Le code a expiré</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>Le code de vérification est incorrect</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>Les données n’existent pas.</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>Les données existent déjà.</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Erreur de suppression</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Erreur de mise à jour</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>Erreur d’ajout</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>Pseudo déjà utilisé</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>Le lien a expiré.</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Veuillez vous reconnecter. Erreur de jeton</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>Vous n’avez pas l’autorisation d’y accéder.</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Vérifiez l’URL de la requête.</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Erreur de base de données.</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Paramètres incorrects.</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>Système en maintenance.</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>Version de l’application trop ancienne&#xa0;; veuillez la mettre à jour.</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Erreur d’interrogation de la base de données</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Erreur d’envoi du fichier</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>Le retour à une version antérieure n’est pas autorisé</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>La région doit être identique</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Les règles de stockage ne peuvent pas être modifiées pendant la période de validité</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>L’autorisation a expiré</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>Aucune information sur cette version.</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>Échec de l’obtention de l’URL.</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>Aucune mise à jour.</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Nom de fichier incorrect</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Cette version ne prend pas en charge cette fonction.</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Erreur d’opération sur le fichier</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>Le fichier à télécharger n’existe pas.</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Numéro client ou secret client incorrect</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Vérifiez la configuration&#xa0;: numéro client et secret client manquants</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>Le code d’autorisation n’existe pas. Veuillez renouveler l’autorisation</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>La méthode de requête est incorrecte. Veuillez contacter le développeur</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Configuration incorrecte, numéro client erroné</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Erreur de configuration. La valeur du chemin est incorrecte</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>délai dépassé</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>le serveur a refusé la connexion</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>le serveur a fermé la connexion prématurément</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>nom d’hôte introuvable</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>opération annulée avant la fin</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>échec de la négociation SSL/TLS</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>déconnexion du réseau</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>itinérance vers un autre point d’accès en cours</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>refusé par la stratégie de la plateforme</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>la limite maximale est atteinte</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>l’API a détecté une redirection</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>erreur réseau inconnue</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>le serveur proxy a refusé la connexion</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>le serveur proxy a fermé la connexion</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>nom d’hôte du proxy introuvable</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>délai du proxy dépassé</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>le proxy a refusé les identifiants fournis</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>erreur de proxy inconnue</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>opération non autorisée</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>contenu distant introuvable sur le serveur</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>impossible de renvoyer la requête</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>conflit avec l’état actuel</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>la ressource n’est plus disponible</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>erreur de contenu inconnue</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>protocole inconnu</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>l’opération demandée n’est pas valide</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>une erreur de protocole a été détectée</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>le serveur a rencontré une condition inattendue</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>le serveur ne prend pas en charge la fonctionnalité</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>le serveur ne peut pas traiter la requête</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>erreur de serveur inconnue</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>Non traité&#xa0;:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Appuyez sur Échap pour quitter le plein écran</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>Aucun enregistrement n&apos;a été trouvé</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>Échec du réglage de la sensibilité de la détection intelligente</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>Échec de la configuration du mot de passe</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>Aucune vidéo à lire n&apos;existe à ce moment.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>Échec de la configuration du réseau sans fil</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>La lecture à distance simultanée n&apos;est pas prise en charge.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>L&apos;appareil ne peut pas modifier le fuseau horaire</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>Échec du réglage du mode de détection intelligente</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>Impossible de créer le vertex shader</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>Impossible de créer le fragment shader</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>Impossible d’ajouter le vertex shader</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>Impossible d’ajouter le fragment shader</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>Impossible de lier les shaders</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>Impossible d’activer les shaders</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>Aucun périphérique d&apos;entrée trouvé.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>Aucun enregistrement n&apos;a été trouvé</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Replier</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Déplier</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Quitter le plein écran</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Arrêter l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Capture d&apos;image</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Fenêtres : %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Journal debug</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Vidéosurveillance réseau</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Vidéosurveillance</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Vidéosurveillance réseau</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Vidéosurveillance réseau</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Pas encore dans cette version</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Relecture</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Panneau de contrôle</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Liste des appareils</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>Contrôle PTZ</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>Infos système</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Page :</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Total :</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Aucune sélection]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Faites défiler pour en charger plus</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Pas encore dans cette version</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Ajouter un appareil</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>Aucun appareil ne correspond à la recherche</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>La liste locale est toujours à jour</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>Aucun appareil pour l’instant. Le guide de l’utilisateur explique comment ajouter le premier.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Page suivante</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>Pas encore dans cette version</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>Voulez-vous rouvrir les canaux ouverts lors de la dernière fermeture ?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmer</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64&#xa0;bits</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32&#xa0;bits</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>Aucune adresse cloud n’est configurée&#xa0;; utilisez «&#xa0;Connexion locale&#xa0;».</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>Cette version n’accède pas encore au cloud&#xa0;; utilisez «&#xa0;Connexion locale&#xa0;».</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Erreur réseau</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Afficher ou masquer le mot de passe</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Se souvenir de moi</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>Mot de passe oublié&#xa0;?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Connexion locale</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>Pas encore de compte&#xa0;?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Inscrivez-vous.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chinois traditionnel</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Néerlandais</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russe</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Connexion en cours, patientez...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Veuillez saisir le nom d’utilisateur.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Veuillez saisir le mot de passe.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Saisissez votre nom d’utilisateur</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Saisissez votre mot de passe</translation>
    </message>
</context>
</TS>
