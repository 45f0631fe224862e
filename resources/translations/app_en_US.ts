<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Login immediately.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Reset Password</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>Registered account?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>Remember password?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Error Code:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Device:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Information:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>Debug Record</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Debug mod is working,Waiting to record</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Delete Device</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Network Error</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>This version loads no devices from the cloud yet.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Unknown:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Play All</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Stop All</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
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
        <translation>Synchronize Timeline</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Audio Get</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Not part of this version yet</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Send Voice</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Edit Device</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Reset Connect</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Record Folder</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Screenshot Folder</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Delete Device</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>No response</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>Cannot resolve domain name</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>Module already initialized</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Fails to create Mutexes</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Fails to create threads</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Fails to create sockets</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Fails to set up socket options</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Fails to bind sockets</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Already login</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>Module is not initialized</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Time out</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SID invalid</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Unknown device</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Fails to get the local IP</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Already start</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Sessions has reached maximum</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>Cannot locate the specified device</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>Session already closes</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Session timeout</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Fails to connect to a device</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>Channel is not turned on</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>Client stops connecting</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Too few masters are specified</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>A client fails to pass certification</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>The channels for a session has reached maximum</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>Cannot connect</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>Client does not support mode</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>A device does not support this mode</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>A device stops for this connections</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>No permission</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Network unreachable</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>Client fails to connect device</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Device login or client connect failed</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Duplicated loggin and may unconnectable</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>The arguments is invalid</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>The device not support partial encoding</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Connect session exceed</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Function is blocking,waiting</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Session close</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Buffer size exceed</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>Does not support this feature</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>Cannot find a path to write data</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>Start function is not called</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Already in processing</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Out of memory</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>The device is banned and locked</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>Master have no response</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>Moudule has some resource problem</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>Send queue is full</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>The feature is not supported</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>Device is in sleep mode</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>Doesn&apos;t support this feature</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>WakeUp Init funtion isn&apos;t called</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Device offline</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Master invalid</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Arguments incorrect</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>Buffer is too small</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>The channels has reached maximum</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Insufficient memory</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>A warning error</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>The buffer to be sent exceeds</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Has no response</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>Client does not start</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Incorrect view account or password</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>Session is not valid</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>Timeout has expired</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>Not ready for receiving</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Some parts of a frame are lost</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>The whole frame is lost</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>The remote session already closes</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Session is disconnected</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>Server exit</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>Client exit</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>Module has not been initialized</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>Client cannot send data</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Already in sending</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>Sending  is terminated </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>Password length is wrong</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>Session has been closed</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Moudule deinitialized</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>Channel is used</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>Waiting key frame</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Reset buffer</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>Queue is full</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>Module is already initialized</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Clean buffer </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Please try again one minute later！</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>You are not the primary user of the device!</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>Device is not belong to you</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>Device has been bound</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat has been bound, please log in and unbind using WeChat</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>No email or mobile phone login</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>System error! Can not send email</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>System object error!</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>Already send the code, please check it or get it again after 10m</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>please check code or get it again after 1m</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>Mail doesn&apos;t exist!</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Phone format error</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>Phone already existed!</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>Phone doesn&apos;t exist!</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>Mail already existed!</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>Account doesn&apos;t exist!</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Email format error！</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>The username not conform to the rules!</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>The password not conform to the rules!</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>user doesn&apos;t activated</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Error password</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>Fingerprint login is not turned on</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>The qr code has expired</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>The code has expired</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>The verification code is wrong</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>Data does not exists!</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>Data already exists!</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Delete error</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Update error</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>ADD error</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>Nickname repeated</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>The link has expired!</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Please ReLogin! errmsg token</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>You don not have permission to access this!</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Please confirm the request url!</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Database Error!</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Wrong parameters!</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>System Maintaining!</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>App Version too low, please upgrade!</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Query Database Error</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Upload file error</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>The file does not exist!</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>Do not downgrade</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>Area needs to be consistent</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Storage rules cannot be changed during the validity period</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>Authorization expires</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>There is no information about this version!</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>Getting URL failure!</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>No update!</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Error filename</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Version does not support this feature!</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Cause of file operation error</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>The download file does not exist!</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Customer number, customer confidentiality error</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Check your configuration: no customer number, customer confidentiality</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>The authorization code does not exist. Please reauthorize</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>The request method is incorrect. Please contact the developer</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Wrong configuration, wrong customer number</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Configuration error. The path value is incorrect&apos;</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>timed out</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>server refused the connection</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>server closed the connection prematurely</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>host name was not found</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>via closed before finished</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>SSL/TLS handshake failed</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>disconnection from the network</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>initiated roaming to another access point</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>platform policy</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>the maximum limit was reached</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>API detected a redirect</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>unknown network error</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>proxy server was refused</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>proxy server closed the connection</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>proxy host name was not found</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>proxy timed out</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>proxy requires did not accept credentials offered</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>unknown proxy-related error</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>access was denied</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>operation is not permitted</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>remote was not found at the server</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>request can not resend</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>conflict with the current state</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>resource is no longer available</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>unknown content error</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>the protocol is not known</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>the requested operation is invalid</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>a breakdown in protocol was detected</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>the server encountered an unexpected condition</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>server does not support the functionality</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>server is unable to handle the request</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>unknown server error</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>No process:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unknown error</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Press ESC to exit the full screen</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>no record has been found</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>Failed to configure the senitivity of smart detection</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>Failed to configure password</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>Playback video data does not exist.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>Failed to configure wireless network</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>Does not support simultaneous remote playback.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>Device cannot modify time zone</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>Failed to configure the mode of smart detection</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>fail to create vertex shader</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>fail to create fragment shader</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>fail to add vertex shader</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>fail to add fragment shader</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>fail to link shaders</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>fail to bind shaders</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>Not Found Input Device.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>no record has been found</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Fold</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Unfold</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Exit Full Screen</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Full Screen</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Stop Recording</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Windows: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Debug Record</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Network Video Monitor</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Video Monitor</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Network Video Monitor</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Network Video Monitor</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Unsigned</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Not part of this version yet</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Control Panel</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Device List</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>PTZ Control</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>System Info</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Page:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Total:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Unselected]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Drop down to load more</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>Not part of this version yet</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Add Device</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>No device matches the search</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>The local list is always up to date</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>No devices yet. The user&apos;s guide tells how to add the first one.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Previous Page</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Next Page</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>Not part of this version yet</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>Do you want to reload the channel that was opened when it was last closed</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64bit</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32bit</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>No cloud address is configured; use Local Login.</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>This version cannot sign in to the cloud yet; use Local Login.</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Network Error</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Show or hide the password</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Remember Password</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>Forget Password?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Local Login</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>No account yet?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Register immediately.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Chinese Simply</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Chinese Traditional</translation>
    </message>
    <message>
        <source>French</source>
        <translation>French</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Italian</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Dutch</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>German</source>
        <translation>German</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Signing in, please wait...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Please enter the username.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Please enter the password.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Enter your username</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Enter your password</translation>
    </message>
</context>
</TS>
