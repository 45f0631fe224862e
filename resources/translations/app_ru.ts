<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>Учётными записями управляет облачный сервис, пока недоступный в этой версии. «Локальный вход» не требует учётной записи.</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>Войдите.</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Регистрация</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>Сброс пароля</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>Уже зарегистрированы?</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>Вспомнили пароль?</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>Код ошибки:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Устройство:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>Сообщение:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>Журнал отладки</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]Режим отладки включён, ожидание записей</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>Удалить устройство</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>Ошибка сети</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>Эта версия пока не загружает устройства из облака.</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[Неизвестно:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>Воспроизвести все</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Остановить все</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
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
        <translation>Синхронизировать шкалу</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>Включить звук</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>В этой версии пока нет</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Выключить звук</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>Говорить</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>Изменить устройство</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>Сбросить соединение</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>Папка записей</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>Папка снимков</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>Удалить устройство</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>Нет ответа</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>Не удалось разрешить доменное имя</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>Модуль уже инициализирован</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>Не удалось создать мьютексы</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>Не удалось создать потоки</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>Не удалось создать сокеты</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>Не удалось задать параметры сокетов</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>Не удалось привязать сокеты</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>Вход уже выполнен</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>Модуль не инициализирован</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>Время ожидания истекло</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>Недопустимый SID</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>Неизвестное устройство</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>Не удалось получить локальный IP-адрес</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>Уже запущено</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>Достигнуто максимальное число сеансов</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>Не удалось найти указанное устройство</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>Сеанс уже закрыт</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>Время ожидания сеанса истекло</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>Не удалось подключиться к устройству</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>Канал не включён</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>Клиент прервал подключение</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>Указано слишком мало мастер-серверов</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>Клиент не прошёл проверку подлинности</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>Достигнуто максимальное число каналов в сеансе</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>Не удалось подключиться</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>Клиент не поддерживает этот режим</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>Устройство не поддерживает этот режим</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>Устройство прервало это подключение</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Нет прав доступа</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Сеть недоступна</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>Клиенту не удалось подключиться к устройству</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>Ошибка входа на устройство или подключения клиента</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>Повторный вход; подключение может быть невозможно</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>Недопустимые аргументы</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>Устройство не поддерживает частичное кодирование</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>Превышено число сеансов подключения</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>Функция блокирует выполнение, ожидание</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>Сеанс закрыт</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>Превышен размер буфера</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>Эта функция не поддерживается</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>Не найден путь для записи данных</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>Функция запуска не вызвана</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>Уже обрабатывается</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Память исчерпана</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>Устройство запрещено и заблокировано</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>Мастер-сервер не отвечает</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>Проблема с ресурсами модуля</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>Очередь отправки заполнена</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>Функция не поддерживается</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>Устройство в спящем режиме</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>Эта функция не поддерживается</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>Функция инициализации WakeUp не вызвана</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>Устройство не в сети</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>Недопустимый мастер-сервер</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>Неверные аргументы</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>Буфер слишком мал</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>Достигнуто максимальное число каналов</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>Недостаточно памяти</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>Превышен размер буфера отправки</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>Не отвечает</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>Клиент не запущен</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>Неверная учётная запись для просмотра или пароль</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>Сеанс недействителен</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>Время ожидания истекло</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>Не готово к приёму</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>Часть кадра потеряна</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>Весь кадр потерян</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>Удалённый сеанс уже закрыт</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>Сеанс разорван</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>Сервер завершил работу</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>Клиент завершил работу</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>Модуль ещё не инициализирован</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>Клиент не может отправить данные</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>Отправка уже выполняется</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>Отправка прервана </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>Неверная длина пароля</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>Сеанс был закрыт</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>Модуль деинициализирован</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>Канал занят</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>Ожидание ключевого кадра</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>Сброс буфера</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>Очередь заполнена</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>Модуль уже инициализирован</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>Очистка буфера </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>Повторите попытку через минуту.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>Вы не являетесь основным пользователем устройства</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>Устройство вам не принадлежит</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>Устройство уже привязано</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChat уже привязан. Войдите через WeChat и отмените привязку.</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>Вход по эл. почте или мобильному телефону не выполнен</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>Системная ошибка: не удалось отправить письмо</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>Ошибка системного объекта</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>Код уже отправлен. Проверьте сообщения или запросите его снова через 10 минут.</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>Проверьте код или запросите его снова через 1 минуту.</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>Адрес эл. почты не существует</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>Неверный формат номера телефона</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>Номер телефона уже зарегистрирован</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>Номер телефона не существует</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>Адрес эл. почты уже зарегистрирован</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>Учётная запись не существует</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>Неверный формат адреса эл. почты</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>Имя пользователя не соответствует правилам</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>Пароль не соответствует правилам</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>Пользователь не активирован</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>Неверный пароль</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>Вход по отпечатку пальца не включён</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>Срок действия QR-кода истёк</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>Срок действия кода истёк</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>Неверный код подтверждения</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>Данные не существуют</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>Данные уже существуют</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>Ошибка удаления</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>Ошибка обновления</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>Ошибка добавления</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>Псевдоним уже используется</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>Срок действия ссылки истёк</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>Войдите снова. Ошибка токена</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>У вас нет прав доступа к этому ресурсу</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>Проверьте URL запроса.</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>Ошибка базы данных</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>Неверные параметры</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>Идёт обслуживание системы</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>Версия приложения устарела. Обновите приложение.</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>Ошибка запроса к базе данных</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>Ошибка загрузки файла на сервер</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>Файл не существует</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>Понижение версии не допускается</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>Регионы должны совпадать</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>Правила хранения нельзя изменить в течение срока действия</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>Срок авторизации истёк</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>Нет сведений об этой версии</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>Не удалось получить URL</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>Обновлений нет</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>Неверное имя файла</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>Эта версия не поддерживает данную функцию</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>Ошибка из-за файловой операции</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>Файл для скачивания не существует</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>Неверный номер или секретный ключ клиента</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>Проверьте конфигурацию: нет номера или секретного ключа клиента</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>Код авторизации не существует. Выполните авторизацию снова.</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>Неверный метод запроса. Обратитесь к разработчику.</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>Неверная конфигурация: неверный номер клиента</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>Ошибка конфигурации. Неверное значение пути.</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>время ожидания истекло</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>сервер отклонил подключение</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>сервер преждевременно закрыл соединение</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>имя узла не найдено</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>прервано до завершения</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>ошибка рукопожатия SSL/TLS</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>отключение от сети</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>начато переключение на другую точку доступа</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>запрещено политикой платформы</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>достигнут предел</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>API обнаружил перенаправление</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>неизвестная ошибка сети</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>прокси-сервер отклонил подключение</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>прокси-сервер закрыл соединение</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>имя узла прокси не найдено</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>время ожидания прокси истекло</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>прокси не принял учётные данные</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>неизвестная ошибка прокси</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>доступ запрещён</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>операция не разрешена</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>содержимое не найдено на сервере</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>запрос нельзя отправить повторно</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>конфликт с текущим состоянием</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>ресурс больше недоступен</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>неизвестная ошибка содержимого</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>неизвестный протокол</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>запрошенная операция недопустима</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>обнаружено нарушение протокола</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>непредвиденное состояние на сервере</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>сервер не поддерживает эту функцию</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>сервер не может обработать запрос</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>неизвестная ошибка сервера</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>Не обработано:</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>Нажмите ESC, чтобы выйти из полноэкранного режима</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>Записи не найдены</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>Не удалось настроить чувствительность интеллектуального обнаружения</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>Не удалось изменить пароль</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>Видеоданные для воспроизведения отсутствуют.</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>Не удалось настроить беспроводную сеть</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>Одновременное удалённое воспроизведение не поддерживается.</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>Устройство не может изменить часовой пояс</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>Не удалось настроить режим интеллектуального обнаружения</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>Не удалось создать вершинный шейдер</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>Не удалось создать фрагментный шейдер</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>Не удалось добавить вершинный шейдер</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>Не удалось добавить фрагментный шейдер</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>Не удалось скомпоновать шейдеры</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>Не удалось подключить шейдеры</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>Устройство ввода не найдено.</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>Записи не найдены</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>Развернуть</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>Выйти из полноэкранного режима</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Полный экран</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>Остановить запись</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Записать</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>Снимок</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>Окон: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>Раскладка</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>Журнал отладки</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Развернуть</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO Сетевое видеонаблюдение</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD Видеонаблюдение</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad Сетевое видеонаблюдение</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>Сетевое видеонаблюдение</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>Вход не выполнен</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Прямой эфир</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>В этой версии пока нет</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Архив</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>Панель управления</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Список устройств</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>Управление PTZ</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>О системе</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Страница:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,Всего:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[Не выбрано]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>Прокрутите, чтобы загрузить ещё</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>В этой версии пока нет</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Добавить устройство</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>Нет устройств, подходящих под запрос</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>Локальный список всегда актуален</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>Устройств пока нет. Как добавить первое, описано в руководстве.</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>Предыдущая страница</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Следующая страница</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>В этой версии пока нет</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>Открыть снова каналы, которые были открыты при последнем закрытии?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Подтвердить</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64-разрядная</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32-разрядная</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>Адрес облака не задан; используйте «Локальный вход».</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>В этой версии вход в облако пока невозможен; используйте «Локальный вход».</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>Ошибка сети</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>Показать или скрыть пароль</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>Запомнить пароль</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>Забыли пароль?</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>Локальный вход</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>Нет учётной записи?</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>Зарегистрируйтесь.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>Китайский (упрощённый)</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>Китайский (традиционный)</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Французский</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>Итальянский</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>Нидерландский</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Испанский</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Немецкий</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Японский</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>Идёт вход, подождите...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>Введите пароль.</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>Введите имя пользователя</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>Введите пароль</translation>
    </message>
</context>
</TS>
