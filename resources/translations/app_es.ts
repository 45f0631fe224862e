<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Las cuentas se gestionan en el servicio en la nube, al que esta versión aún no puede acceder. «Acceso local» no requiere ninguna cuenta.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Inicie sesión ahora.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Restablecer contraseña</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>¿Ya tiene una cuenta?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>¿Recuerda su contraseña?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Código de error:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Dispositivo:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Información:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Registro debug</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Modo debug activo, a la espera de datos que registrar</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Eliminar dispositivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Error de red</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>Esta versión aún no carga dispositivos de la nube.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Desconocido:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Reproducir todo</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Detener todo</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
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
        <translation>Sincronizar línea de tiempo</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Activar audio</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Aún no incluido en esta versión</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Hablar</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Editar dispositivo</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Restablecer conexión</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Carpeta de grabaciones</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Carpeta de capturas</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Eliminar dispositivo</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>No se puede resolver el nombre de dominio</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>El módulo ya está inicializado</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Error al crear los mutex</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Error al crear los hilos</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Error al crear los sockets</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Error al configurar las opciones de los sockets</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Error al enlazar los sockets</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Ya se ha iniciado sesión</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>El módulo no está inicializado</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Tiempo de espera agotado</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SID no válido</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Dispositivo desconocido</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Error al obtener la dirección IP local</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Ya se ha iniciado</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Se ha alcanzado el número máximo de sesiones</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>No se puede localizar el dispositivo especificado</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>La sesión ya está cerrada</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Tiempo de espera de la sesión agotado</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Error al conectar con un dispositivo</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>El canal no está activado</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>El cliente ha interrumpido la conexión</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Se han especificado muy pocos servidores maestros</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>Error de autenticación de un cliente</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>Se ha alcanzado el número máximo de canales por sesión</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>No se puede conectar</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>El cliente no admite este modo</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>El dispositivo no admite este modo</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>El dispositivo ha finalizado esta conexión</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sin permiso</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Red inaccesible</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>El cliente no ha podido conectarse al dispositivo</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Error de inicio de sesión del dispositivo o de conexión del cliente</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Inicio de sesión duplicado; es posible que no se pueda conectar</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>Los argumentos no son válidos</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>El dispositivo no admite la codificación parcial</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Se ha superado el número de sesiones de conexión</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Función bloqueada, en espera</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Sesión cerrada</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Se ha superado el tamaño del búfer</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>No se admite esta función</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>No se encuentra ninguna ruta para escribir los datos</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>No se ha llamado a la función de inicio</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Ya se está procesando</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria agotada</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>El dispositivo está vetado y bloqueado</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>El servidor maestro no responde</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>El módulo tiene un problema de recursos</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>La cola de envío está llena</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>No se admite esta función</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>El dispositivo está en modo de suspensión</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>No se admite esta función</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>No se ha llamado a la función de inicialización de la reactivación</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Dispositivo sin conexión</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Servidor maestro no válido</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Argumentos incorrectos</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>El búfer es demasiado pequeño</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>Se ha alcanzado el número máximo de canales</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>Se ha superado el tamaño del búfer de envío</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>El cliente no se ha iniciado</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Cuenta de visualización o contraseña incorrecta</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>La sesión no es válida</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>El tiempo de espera se ha agotado</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>No está listo para recibir</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Se han perdido partes de un fotograma</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>Se ha perdido el fotograma completo</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>La sesión remota ya está cerrada</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Sesión desconectada</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>El servidor se ha cerrado</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>El cliente se ha cerrado</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>El módulo no se ha inicializado</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>El cliente no puede enviar datos</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Ya hay un envío en curso</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>Se ha interrumpido el envío </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>La longitud de la contraseña es incorrecta</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>La sesión se ha cerrado</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Módulo desinicializado</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>El canal está en uso</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>Esperando fotograma clave</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Restableciendo el búfer</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>La cola está llena</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>El módulo ya está inicializado</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Vaciando el búfer </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Vuelva a intentarlo dentro de un minuto.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>No es usted el usuario principal del dispositivo.</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>El dispositivo no le pertenece</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>El dispositivo ya está vinculado</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat ya está vinculado; inicie sesión con WeChat y desvincúlelo</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>Sin inicio de sesión por correo electrónico o teléfono móvil</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>Error del sistema. No se puede enviar el correo electrónico</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>Error de objeto del sistema.</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>El código ya se ha enviado; compruebe sus mensajes o solicítelo de nuevo dentro de 10 minutos</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>Compruebe el código o solicítelo de nuevo dentro de 1 minuto</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>El correo electrónico no existe.</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Formato de teléfono incorrecto</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>El teléfono ya existe.</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>El teléfono no existe.</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>El correo electrónico ya existe.</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>La cuenta no existe.</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Formato de correo electrónico incorrecto.</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>El nombre de usuario no cumple las reglas.</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>La contraseña no cumple las reglas.</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>Usuario no activado</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>El inicio de sesión con huella digital no está activado</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>El código QR ha caducado</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>El código ha caducado</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>El código de verificación es incorrecto</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>Los datos no existen.</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>Los datos ya existen.</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Error al eliminar</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Error al actualizar</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>Error al añadir</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>El alias ya está en uso</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>El enlace ha caducado.</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Vuelva a iniciar sesión. Error de token</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>No tiene permiso para acceder.</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Compruebe la URL de la solicitud.</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Error de la base de datos.</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Parámetros incorrectos.</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>Sistema en mantenimiento.</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>La versión de la aplicación es demasiado antigua; actualícela.</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Error al consultar la base de datos</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Error al subir el archivo</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>No se permite volver a una versión anterior</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>La región debe coincidir</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Las reglas de almacenamiento no se pueden cambiar durante el periodo de validez</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>La autorización ha caducado</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>No hay información sobre esta versión.</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>Error al obtener la URL.</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>No hay actualizaciones.</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Nombre de archivo incorrecto</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Esta versión no admite esta función.</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Error en la operación con el archivo</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>El archivo que desea descargar no existe.</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Número de cliente o secreto de cliente incorrecto</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Compruebe la configuración: faltan el número de cliente y el secreto de cliente</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>El código de autorización no existe. Repita la autorización</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>El método de la solicitud es incorrecto. Póngase en contacto con el desarrollador</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Configuración incorrecta, número de cliente incorrecto</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Error de configuración. El valor de la ruta es incorrecto</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>tiempo de espera agotado</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>el servidor ha rechazado la conexión</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>el servidor ha cerrado la conexión antes de tiempo</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>no se ha encontrado el nombre de host</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>operación cancelada antes de finalizar</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>error en la negociación SSL/TLS</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>desconexión de la red</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>se ha iniciado la itinerancia a otro punto de acceso</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>denegado por la política de la plataforma</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>se ha alcanzado el límite máximo</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>la API ha detectado una redirección</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>error de red desconocido</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>el servidor proxy ha rechazado la conexión</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>el servidor proxy ha cerrado la conexión</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>no se ha encontrado el nombre de host del proxy</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>tiempo de espera del proxy agotado</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>el proxy no ha aceptado las credenciales proporcionadas</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>error de proxy desconocido</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>acceso denegado</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>operación no permitida</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>no se ha encontrado el contenido remoto en el servidor</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>no se puede reenviar la solicitud</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>conflicto con el estado actual</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>el recurso ya no está disponible</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>error de contenido desconocido</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>protocolo desconocido</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>la operación solicitada no es válida</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>se ha detectado un error de protocolo</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>el servidor ha encontrado una condición inesperada</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>el servidor no admite la funcionalidad</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>el servidor no puede procesar la solicitud</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>error de servidor desconocido</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>No procesado:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Pulse ESC para salir de la pantalla completa</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>No se ha encontrado ninguna grabación</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>No se pudo configurar la sensibilidad de la detección inteligente</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>No se pudo configurar la contraseña</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>No existen datos de vídeo para reproducir.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>No se pudo configurar la red inalámbrica</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>No admite la reproducción remota simultánea.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>El dispositivo no puede cambiar la zona horaria</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>No se pudo configurar el modo de detección inteligente</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>No se pudo crear el sombreador de vértices</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>No se pudo crear el sombreador de fragmentos</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>No se pudo añadir el sombreador de vértices</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>No se pudo añadir el sombreador de fragmentos</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>No se pudieron enlazar los sombreadores</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>No se pudieron activar los sombreadores</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>No se ha encontrado ningún dispositivo de entrada.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>No se ha encontrado ninguna grabación</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Plegar</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Desplegar</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Captura de imagen</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Ventanas: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Registro debug</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Videovigilancia en red</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Videovigilancia</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Videovigilancia en red</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Videovigilancia en red</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Sin iniciar sesión</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Aún no incluido en esta versión</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Panel de control</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Lista de dispositivos</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>Control PTZ</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>Información del sistema</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Página:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Total:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Sin selección]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Desplácese para cargar más</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Aún no incluido en esta versión</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Añadir dispositivo</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>Ningún dispositivo coincide con la búsqueda</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>La lista local siempre está actualizada</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>Aún no hay dispositivos. La guía del usuario explica cómo añadir el primero.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Página siguiente</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>Aún no incluido en esta versión</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>¿Desea volver a abrir los canales que estaban abiertos al cerrar la última vez?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>64 bits</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32 bits</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>No hay ninguna dirección de nube configurada; use «Acceso local».</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>Esta versión aún no puede iniciar sesión en la nube; use «Acceso local».</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Error de red</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Mostrar u ocultar la contraseña</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Guardar contraseña</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>¿Olvidó su contraseña?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Acceso local</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>¿Aún no tiene cuenta?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Regístrese ahora.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chino tradicional</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Neerlandés</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruso</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Iniciando sesión, espere...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Introduzca el nombre de usuario.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Introduzca la contraseña.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Introduzca su nombre de usuario</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Introduzca su contraseña</translation>
    </message>
</context>
</TS>
