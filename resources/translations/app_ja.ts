<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>アカウントはクラウドサービスで管理されますが、このバージョンはまだ同サービスに接続できません。ローカルログインにアカウントは不要です。</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>今すぐログイン</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>登録</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>パスワードの再設定</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>アカウントをお持ちの方は</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>パスワードを思い出した方は</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>エラーコード:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>デバイス:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>情報:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>デバッグ記録</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]デバッグモードで動作中です。記録を待機しています</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>デバイスを削除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>通信エラー</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>このバージョンはまだクラウドからデバイスを読み込みません。</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[不明:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>すべて再生</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>すべて停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
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
        <translation>タイムラインを同期</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>音声オン</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>このバージョンにはまだありません</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>音声送信</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>デバイスを編集</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>接続をリセット</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>録画フォルダー</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>スナップショットフォルダー</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>デバイスを削除</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>ドメイン名を解決できません</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>モジュールはすでに初期化されています</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>ミューテックスの作成に失敗しました</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>スレッドの作成に失敗しました</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>ソケットの作成に失敗しました</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>ソケットオプションの設定に失敗しました</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>ソケットのバインドに失敗しました</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>すでにログインしています</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>モジュールが初期化されていません</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>タイムアウトしました</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SIDが無効です</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>不明なデバイスです</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>ローカルIPの取得に失敗しました</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>すでに開始しています</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>セッション数が上限に達しました</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>指定されたデバイスが見つかりません</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>セッションはすでに終了しています</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>セッションがタイムアウトしました</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>デバイスへの接続に失敗しました</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>チャンネルが開かれていません</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>クライアントが接続を中止しました</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>指定されたマスターサーバーの数が不足しています</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>クライアントの認証に失敗しました</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>セッションのチャンネル数が上限に達しました</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>接続できません</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>クライアントはこのモードに対応していません</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>デバイスはこのモードに対応していません</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>デバイスがこの接続を停止しました</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>権限がありません</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>クライアントからデバイスへの接続に失敗しました</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>デバイスのログインまたはクライアントの接続に失敗しました</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>ログインが重複しているため、接続できない可能性があります</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>引数が無効です</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>デバイスは部分エンコードに対応していません</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>接続セッション数が上限を超えています</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>関数がブロック中です。待機しています</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>セッションが終了しました</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>バッファーサイズを超えています</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>この機能には対応していません</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>データの書き込み先パスが見つかりません</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>開始関数が呼び出されていません</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>すでに処理中です</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>デバイスは使用が禁止され、ロックされています</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>マスターサーバーから応答がありません</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>モジュールのリソースに問題があります</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>送信キューがいっぱいです</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>この機能には対応していません</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>デバイスはスリープモードです</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>この機能には対応していません</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>ウェイクアップの初期化関数が呼び出されていません</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>デバイスがオフラインです</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>マスターサーバーが無効です</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>引数が正しくありません</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>バッファーが小さすぎます</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>チャンネル数が上限に達しました</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>警告レベルのエラーです</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>送信バッファーが上限を超えています</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>応答がありません</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>クライアントが開始されていません</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>閲覧用アカウントまたはパスワードが正しくありません</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>セッションが無効です</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>タイムアウト時間を過ぎました</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>受信の準備ができていません</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>フレームの一部が失われました</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>フレーム全体が失われました</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>リモートセッションはすでに終了しています</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>セッションが切断されました</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>サーバーが終了しました</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>クライアントが終了しました</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>モジュールが初期化されていません</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>クライアントはデータを送信できません</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>すでに送信中です</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>送信が中止されました </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>パスワードの長さが正しくありません</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>セッションは終了しました</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>モジュールの初期化が解除されました</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>チャンネルは使用中です</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>キーフレームを待っています</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>バッファーをリセット</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>キューがいっぱいです</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>モジュールはすでに初期化されています</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>バッファーをクリア </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>1分後にもう一度お試しください</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>このデバイスのメインユーザーではありません</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>このデバイスはお客様のものではありません</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>デバイスはすでに紐付けられています</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>WeChatと連携済みです。WeChatでログインして連携を解除してください</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>メールアドレスまたは携帯電話番号でログインしていません</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>システムエラーのため、メールを送信できません</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>システムオブジェクトのエラーです</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>認証コードは送信済みです。ご確認いただくか、10分後に再取得してください</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>認証コードをご確認いただくか、1分後に再取得してください</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>メールアドレスが存在しません</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>電話番号の形式が正しくありません</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>この電話番号はすでに登録されています</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>電話番号が存在しません</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>このメールアドレスはすでに登録されています</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>アカウントが存在しません</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>メールアドレスの形式が正しくありません</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>ユーザー名が規則に合っていません</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>パスワードが規則に合っていません</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>ユーザーが有効化されていません</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>パスワードが正しくありません</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>指紋ログインが有効になっていません</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>QRコードの有効期限が切れています</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>認証コードの有効期限が切れています</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>認証コードが正しくありません</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>データが存在しません</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>データはすでに存在します</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>削除に失敗しました</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>更新に失敗しました</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>追加に失敗しました</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>ニックネームが重複しています</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>リンクの有効期限が切れています</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>トークンエラーです。もう一度ログインしてください</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>アクセス権限がありません</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>リクエストURLをご確認ください</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>データベースエラーです</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>パラメーターが正しくありません</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>システムメンテナンス中です</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>アプリのバージョンが古いため、アップグレードしてください</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>データベースの照会中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>ファイルのアップロードに失敗しました</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>ファイルが存在しません</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>ダウングレードはできません</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>地域を一致させる必要があります</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>有効期間中は保存ルールを変更できません</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>認可の有効期限が切れています</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>このバージョンの情報がありません</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>URLの取得に失敗しました</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>更新はありません</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>ファイル名が正しくありません</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>このバージョンはこの機能に対応していません</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>ファイル操作エラーが発生しました</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>ダウンロードするファイルが存在しません</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>顧客番号または顧客シークレットが正しくありません</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>設定をご確認ください：顧客番号または顧客シークレットがありません</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>認可コードが存在しません。もう一度認可を行ってください</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>リクエストメソッドが正しくありません。開発者にお問い合わせください</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>設定エラー：顧客番号が正しくありません</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>設定エラー：パスの値が正しくありません</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>タイムアウトしました</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>サーバーが接続を拒否しました</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>サーバーが途中で接続を閉じました</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>ホスト名が見つかりません</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>完了前に操作が取り消されました</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>SSL/TLSハンドシェイクに失敗しました</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>ネットワークから切断されました</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>別のアクセスポイントへのローミングを開始しました</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>プラットフォームのポリシーにより制限されています</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>上限に達しました</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>APIがリダイレクトを検出しました</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>不明なネットワークエラーです</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>プロキシサーバーが接続を拒否しました</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>プロキシサーバーが接続を閉じました</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>プロキシのホスト名が見つかりません</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>プロキシがタイムアウトしました</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>プロキシの認証が必要ですが、提示した認証情報は受け入れられませんでした</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>プロキシ関連の不明なエラーです</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>この操作は許可されていません</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>サーバー上にリモートコンテンツが見つかりません</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>リクエストを再送信できません</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>現在の状態と競合しています</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>リソースは利用できなくなりました</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>コンテンツの不明なエラーです</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>不明なプロトコルです</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>要求された操作は無効です</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>プロトコルの異常を検出しました</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>サーバーで予期しない状態が発生しました</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>サーバーはこの機能に対応していません</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>サーバーはリクエストを処理できません</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>不明なサーバーエラーです</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>未処理のエラー：</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>不明なエラーです</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>ESCキーで全画面表示を終了</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>録画が見つかりませんでした</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>スマート検知の感度を設定できませんでした</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>パスワードを設定できませんでした</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>再生する録画データがありません。</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>無線ネットワークを設定できませんでした</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>複数チャンネルの同時リモート再生には対応していません。</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>デバイスはタイムゾーンを変更できません</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>スマート検知のモードを設定できませんでした</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>頂点シェーダーを作成できませんでした</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>フラグメントシェーダーを作成できませんでした</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>頂点シェーダーを追加できませんでした</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>フラグメントシェーダーを追加できませんでした</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>シェーダーをリンクできませんでした</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>シェーダーをバインドできませんでした</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>入力デバイスが見つかりません。</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>録画が見つかりませんでした</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>展開</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>全画面表示を終了</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全画面表示</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>録画を停止</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>録画</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>スナップショット</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>画面数: %1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>画面分割</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>デバッグ記録</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO ネットワークビデオモニター</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD ビデオモニター</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad ネットワークビデオモニター</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>ネットワークビデオモニター</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>未ログイン</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>このバージョンにはまだありません</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>コントロールパネル</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>デバイス一覧</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>PTZ操作</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>システム情報</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>、合計:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[未選択]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>下にスクロールして続きを読み込む</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>このバージョンにはまだありません</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>デバイスを追加</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>検索に一致するデバイスはありません</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>ローカルの一覧は常に最新です</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>デバイスはまだありません。追加方法はユーザーガイドをご覧ください。</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>次のページ</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>このバージョンにはまだありません</translation>
    </message>
</context>
<context>
    <name>PlayBtn</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>前回終了時に開いていたチャンネルを再度開きますか</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64ビット</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32ビット</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>クラウドアドレスが未設定です。ローカルログインをご利用ください。</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>このバージョンはクラウドへのログインに未対応です。ローカルログインをご利用ください。</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>通信エラー</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>パスワードの表示／非表示</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>パスワードを保存</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>パスワードを忘れた場合</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>ローカルログイン</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>アカウントをお持ちでない方は</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>今すぐ登録</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>中国語（簡体字）</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>中国語（繁体字）</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>イタリア語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>オランダ語</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>ロシア語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>ログイン中です。お待ちください...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>パスワードを入力してください。</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>ユーザー名を入力</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>パスワードを入力</translation>
    </message>
</context>
</TS>
