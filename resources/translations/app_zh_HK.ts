<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_HK" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>帳戶由雲端服務管理，此版本尚未支援連接該服務。本機登入無需帳戶。</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>立即登入</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>註冊</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>重設密碼</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>已有帳戶？</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>記起密碼了？</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>錯誤代碼:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>裝置:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>資訊:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>ChannelWindow</name>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
</context>
<context>
    <name>DebugRecord</name>
    <message>
        <source>Debug Record</source>
        <translation>偵錯記錄</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]偵錯模式已啟用，等待記錄</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>刪除裝置</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>網絡錯誤</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>此版本尚未能從雲端載入裝置。</translation>
    </message>
    <message>
        <source>[Unknown:</source>
        <translation>[未知:</translation>
    </message>
</context>
<context>
    <name>DevMenu</name>
    <message>
        <source>Play All</source>
        <translation>全部播放</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>全部停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
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
        <translation>同步時間軸</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>開啟聲音</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>語音對講</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>編輯裝置</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>重設連線</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>錄影資料夾</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>截圖資料夾</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>刪除裝置</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>無法解析網域名稱</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>模組已初始化</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>無法建立互斥鎖</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>無法建立執行緒</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>無法建立通訊端</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>無法設定通訊端選項</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>無法繫結通訊端</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>已登入</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>模組未初始化</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>逾時</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SID 無效</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>不明裝置</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>無法取得本機 IP</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>已啟動</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>工作階段數目已達上限</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>找不到指定的裝置</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>工作階段已關閉</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>工作階段逾時</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>無法連線至裝置</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>通道未開啟</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>用戶端已停止連線</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>指定的主控伺服器過少</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>用戶端認證失敗</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>工作階段的通道數目已達上限</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>無法連線</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>用戶端不支援此模式</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>裝置不支援此模式</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>裝置已停止此連線</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>沒有權限</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>無法連上網絡</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>用戶端無法連線至裝置</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>裝置登入或用戶端連線失敗</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>重複登入，可能無法連線</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>參數無效</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>裝置不支援部分編碼</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>連線工作階段數目超出上限</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>函式阻塞中，正在等候</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>工作階段關閉</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>超出緩衝區大小</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>找不到寫入資料的路徑</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>未呼叫啟動函式</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>正在處理</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>裝置已被停用及鎖定</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>主控伺服器沒有回應</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>模組資源異常</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>傳送佇列已滿</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>裝置處於休眠模式</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>未呼叫喚醒初始化函式</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>裝置離線</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>主控伺服器無效</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>參數不正確</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>緩衝區過小</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>通道數目已達上限</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>警告層級錯誤</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>待傳送的緩衝區超出上限</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>用戶端未啟動</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>檢視帳戶或密碼錯誤</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>工作階段無效</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>已逾時</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>尚未準備好接收</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>影格部分遺失</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>整個影格遺失</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>遠端工作階段已關閉</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>工作階段已中斷</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>伺服器已結束</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>用戶端已結束</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>模組尚未初始化</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>用戶端無法傳送資料</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>正在傳送</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>傳送已終止 </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>密碼長度錯誤</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>工作階段已關閉</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>模組已解除初始化</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>通道已被佔用</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>正在等候關鍵影格</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>重設緩衝區</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>佇列已滿</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>模組已初始化</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>清空緩衝區 </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>請在 1 分鐘後再試</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>您不是此裝置的主要用戶</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>此裝置不屬於您</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>裝置已被綁定</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>已綁定 WeChat，請使用 WeChat 登入後解除綁定</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>未使用電郵或手機號碼登入</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>系統錯誤，無法傳送電郵</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>系統物件錯誤</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>驗證碼已傳送，請查收，或在 10 分鐘後重新取得</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>請查收驗證碼，或在 1 分鐘後重新取得</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>電郵不存在</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>手機號碼格式錯誤</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>手機號碼已存在</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>手機號碼不存在</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>電郵已存在</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>帳戶不存在</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>電郵格式錯誤</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>用戶名稱不符合規則</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>密碼不符合規則</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>用戶帳戶尚未啟用</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>密碼錯誤</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>未開啟指紋登入</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>QR 碼已過期</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>驗證碼已過期</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>驗證碼錯誤</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>資料不存在</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>資料已存在</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>刪除失敗</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>更新失敗</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>新增失敗</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>暱稱重複</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>連結已過期</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>權杖錯誤，請重新登入</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>您沒有存取權限</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>請確認要求的 URL</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>資料庫錯誤</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>參數錯誤</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>系統維護中</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>應用程式版本過舊，請升級</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>查詢資料庫時發生錯誤</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>上載檔案失敗</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>檔案不存在</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>不允許降級</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>地區必須一致</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>有效期內不能更改儲存規則</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>授權已過期</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>沒有此版本的資料</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>無法取得 URL</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>沒有更新</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>檔案名稱錯誤</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>此版本不支援此功能</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>檔案操作錯誤</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>下載的檔案不存在</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>客戶編號或客戶密鑰錯誤</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>請檢查設定：缺少客戶編號或客戶密鑰</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>授權碼不存在，請重新授權</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>要求方法錯誤，請聯絡開發者</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>設定錯誤：客戶編號不正確</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>設定錯誤：路徑值不正確</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>連線逾時</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>伺服器拒絕連線</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>伺服器提早關閉了連線</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>找不到主機名稱</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>操作在完成前被取消</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>SSL/TLS 交握失敗</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>網絡連線已中斷</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>正在漫遊至其他存取點</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>受平台政策限制</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>已達到上限</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>API 偵測到重新導向</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>不明的網絡錯誤</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>代理伺服器拒絕連線</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>代理伺服器關閉了連線</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>找不到代理伺服器主機名稱</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>代理伺服器逾時</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>代理伺服器需要認證，但不接受所提供的憑證</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>不明的代理伺服器錯誤</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>存取遭拒</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>不允許執行此操作</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>在伺服器上找不到遠端內容</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>無法重新傳送要求</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>與目前狀態衝突</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>資源已無法使用</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>不明的內容錯誤</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>不明的通訊協定</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>要求的操作無效</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>偵測到通訊協定異常</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>伺服器發生未預期的狀況</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>伺服器不支援此功能</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>伺服器無法處理此要求</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>不明的伺服器錯誤</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>未處理的錯誤：</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>不明的錯誤</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>按 ESC 退出全螢幕</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>找不到錄影</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>智能偵測靈敏度設定失敗</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>密碼設定失敗</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>重播錄影資料不存在。</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>無線網絡設定失敗</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>不支援同時遠端重播。</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>裝置無法修改時區</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>智能偵測模式設定失敗</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>建立頂點著色器失敗</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>建立片段著色器失敗</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>加入頂點著色器失敗</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>加入片段著色器失敗</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>連結著色器失敗</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>綁定著色器失敗</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>找不到輸入裝置。</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>找不到錄影</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>摺疊</translation>
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
        <translation>退出全螢幕</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全螢幕</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>停止錄影</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>錄影</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>截圖</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>視窗數：%1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>畫面佈局</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>偵錯記錄</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO 網絡視訊監控</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD 視訊監控</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad 網絡視訊監控</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>網絡視訊監控</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>未登入</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Control Panel</source>
        <translation>控制台</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>裝置清單</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>雲台控制</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>系統資訊</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>頁:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,共:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[未選取]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>下拉載入更多</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>新增裝置</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>沒有符合搜尋的裝置</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>本機清單一律為最新</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>還沒有裝置。使用手冊說明如何新增第一台裝置。</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>下一頁</translation>
    </message>
</context>
<context>
    <name>PictureKey</name>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
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
        <translation>播放</translation>
    </message>
</context>
<context>
    <name>ReopenAlert</name>
    <message>
        <source>Do you want to reload the channel that was opened when it was last closed</source>
        <translation>是否重新開啟上次關閉時開啟的頻道</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
</context>
<context>
    <name>SystemInfo</name>
    <message>
        <source>64bit</source>
        <translation>64 位元</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32 位元</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>尚未設定雲端位址，請使用本機登入。</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>此版本尚未支援登入雲端，請使用本機登入。</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>網絡錯誤</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>顯示或隱藏密碼</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>記住密碼</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>忘記密碼？</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>本機登入</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>還沒有帳戶？</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>立即註冊</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英文</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>繁體中文</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法文</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利文</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷蘭文</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙文</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄文</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德文</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日文</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>正在登入，請稍候...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>請輸入用戶名稱。</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>請輸入密碼。</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>輸入用戶名稱</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>輸入密碼</translation>
    </message>
</context>
</TS>
