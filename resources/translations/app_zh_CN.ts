<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AccountNotice</name>
    <message>
        <source>Accounts are managed by the cloud service, which this version does not reach yet. Local Login needs no account.</source>
        <translation>账号由云服务管理，此版本尚未接入云服务。本地登录无需账号。</translation>
    </message>
    <message>
        <source>Login immediately.</source>
        <translation>立即登录</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>注册</translation>
    </message>
    <message>
        <source>Reset Password</source>
        <translation>重置密码</translation>
    </message>
    <message>
        <source>Registered account?</source>
        <translation>已有账号？</translation>
    </message>
    <message>
        <source>Remember password?</source>
        <translation>想起密码了？</translation>
    </message>
</context>
<context>
    <name>Alert</name>
    <message>
        <source>Error Code:</source>
        <translation>错误代码:</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>设备:</translation>
    </message>
    <message>
        <source>Information:</source>
        <translation>信息:</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
        <translation>调试记录</translation>
    </message>
    <message>
        <source>[START]Debug mod is working,Waiting to record</source>
        <translation>[START]调试模式已启用，等待记录</translation>
    </message>
</context>
<context>
    <name>DelAlert</name>
    <message>
        <source>Delete Device</source>
        <translation>删除设备</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>Dev</name>
    <message>
        <source>Network Error</source>
        <translation>网络错误</translation>
    </message>
    <message>
        <source>This version loads no devices from the cloud yet.</source>
        <translation>此版本尚不能从云端加载设备。</translation>
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
        <translation>同步时间轴</translation>
    </message>
    <message>
        <source>Audio Get</source>
        <translation>开启声音</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Send Voice</source>
        <translation>语音对讲</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>编辑设备</translation>
    </message>
    <message>
        <source>Reset Connect</source>
        <translation>重置连接</translation>
    </message>
    <message>
        <source>Record Folder</source>
        <translation>录像文件夹</translation>
    </message>
    <message>
        <source>Screenshot Folder</source>
        <translation>截图文件夹</translation>
    </message>
    <message>
        <source>Delete Device</source>
        <translation>删除设备</translation>
    </message>
</context>
<context>
    <name>ErrorMsg</name>
    <message>
        <source>No response</source>
        <translation>无响应</translation>
    </message>
    <message>
        <source>Cannot resolve domain name</source>
        <translation>无法解析域名</translation>
    </message>
    <message>
        <source>Module already initialized</source>
        <translation>模块已初始化</translation>
    </message>
    <message>
        <source>Fails to create Mutexes</source>
        <translation>创建互斥锁失败</translation>
    </message>
    <message>
        <source>Fails to create threads</source>
        <translation>创建线程失败</translation>
    </message>
    <message>
        <source>Fails to create sockets</source>
        <translation>创建套接字失败</translation>
    </message>
    <message>
        <source>Fails to set up socket options</source>
        <translation>设置套接字选项失败</translation>
    </message>
    <message>
        <source>Fails to bind sockets</source>
        <translation>绑定套接字失败</translation>
    </message>
    <message>
        <source>Already login</source>
        <translation>已登录</translation>
    </message>
    <message>
        <source>Module is not initialized</source>
        <translation>模块未初始化</translation>
    </message>
    <message>
        <source>Time out</source>
        <translation>超时</translation>
    </message>
    <message>
        <source>SID invalid</source>
        <translation>SID 无效</translation>
    </message>
    <message>
        <source>Unknown device</source>
        <translation>未知设备</translation>
    </message>
    <message>
        <source>Fails to get the local IP</source>
        <translation>获取本机 IP 失败</translation>
    </message>
    <message>
        <source>Already start</source>
        <translation>已启动</translation>
    </message>
    <message>
        <source>Sessions has reached maximum</source>
        <translation>会话数已达上限</translation>
    </message>
    <message>
        <source>Cannot locate the specified device</source>
        <translation>找不到指定的设备</translation>
    </message>
    <message>
        <source>Session already closes</source>
        <translation>会话已关闭</translation>
    </message>
    <message>
        <source>Session timeout</source>
        <translation>会话超时</translation>
    </message>
    <message>
        <source>Fails to connect to a device</source>
        <translation>连接设备失败</translation>
    </message>
    <message>
        <source>Channel is not turned on</source>
        <translation>通道未开启</translation>
    </message>
    <message>
        <source>Client stops connecting</source>
        <translation>客户端已停止连接</translation>
    </message>
    <message>
        <source>Too few masters are specified</source>
        <translation>指定的主控服务器过少</translation>
    </message>
    <message>
        <source>A client fails to pass certification</source>
        <translation>客户端认证失败</translation>
    </message>
    <message>
        <source>The channels for a session has reached maximum</source>
        <translation>会话的通道数已达上限</translation>
    </message>
    <message>
        <source>Cannot connect</source>
        <translation>无法连接</translation>
    </message>
    <message>
        <source>Client does not support mode</source>
        <translation>客户端不支持该模式</translation>
    </message>
    <message>
        <source>A device does not support this mode</source>
        <translation>设备不支持该模式</translation>
    </message>
    <message>
        <source>A device stops for this connections</source>
        <translation>设备已停止此连接</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>网络不可达</translation>
    </message>
    <message>
        <source>Client fails to connect device</source>
        <translation>客户端连接设备失败</translation>
    </message>
    <message>
        <source>Device login or client connect failed</source>
        <translation>设备登录或客户端连接失败</translation>
    </message>
    <message>
        <source>Duplicated loggin and may unconnectable</source>
        <translation>重复登录，可能无法连接</translation>
    </message>
    <message>
        <source>The arguments is invalid</source>
        <translation>参数无效</translation>
    </message>
    <message>
        <source>The device not support partial encoding</source>
        <translation>设备不支持部分编码</translation>
    </message>
    <message>
        <source>Connect session exceed</source>
        <translation>连接会话数超出上限</translation>
    </message>
    <message>
        <source>Function is blocking,waiting</source>
        <translation>函数阻塞中，正在等待</translation>
    </message>
    <message>
        <source>Session close</source>
        <translation>会话关闭</translation>
    </message>
    <message>
        <source>Buffer size exceed</source>
        <translation>超出缓冲区大小</translation>
    </message>
    <message>
        <source>Does not support this feature</source>
        <translation>不支持该功能</translation>
    </message>
    <message>
        <source>Cannot find a path to write data</source>
        <translation>找不到写入数据的路径</translation>
    </message>
    <message>
        <source>Start function is not called</source>
        <translation>未调用启动函数</translation>
    </message>
    <message>
        <source>Already in processing</source>
        <translation>正在处理中</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>The device is banned and locked</source>
        <translation>设备已被禁用并锁定</translation>
    </message>
    <message>
        <source>Master have no response</source>
        <translation>主控服务器无响应</translation>
    </message>
    <message>
        <source>Moudule has some resource problem</source>
        <translation>模块资源异常</translation>
    </message>
    <message>
        <source>Send queue is full</source>
        <translation>发送队列已满</translation>
    </message>
    <message>
        <source>The feature is not supported</source>
        <translation>不支持该功能</translation>
    </message>
    <message>
        <source>Device is in sleep mode</source>
        <translation>设备处于休眠模式</translation>
    </message>
    <message>
        <source>Doesn&apos;t support this feature</source>
        <translation>不支持该功能</translation>
    </message>
    <message>
        <source>WakeUp Init funtion isn&apos;t called</source>
        <translation>未调用唤醒初始化函数</translation>
    </message>
    <message>
        <source>Device offline</source>
        <translation>设备离线</translation>
    </message>
    <message>
        <source>Master invalid</source>
        <translation>主控服务器无效</translation>
    </message>
    <message>
        <source>Arguments incorrect</source>
        <translation>参数不正确</translation>
    </message>
    <message>
        <source>Buffer is too small</source>
        <translation>缓冲区过小</translation>
    </message>
    <message>
        <source>The channels has reached maximum</source>
        <translation>通道数已达上限</translation>
    </message>
    <message>
        <source>Insufficient memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>A warning error</source>
        <translation>警告级错误</translation>
    </message>
    <message>
        <source>The buffer to be sent exceeds</source>
        <translation>待发送的缓冲区超出上限</translation>
    </message>
    <message>
        <source>Has no response</source>
        <translation>无响应</translation>
    </message>
    <message>
        <source>Client does not start</source>
        <translation>客户端未启动</translation>
    </message>
    <message>
        <source>Incorrect view account or password</source>
        <translation>查看账号或密码错误</translation>
    </message>
    <message>
        <source>Session is not valid</source>
        <translation>会话无效</translation>
    </message>
    <message>
        <source>Timeout has expired</source>
        <translation>已超时</translation>
    </message>
    <message>
        <source>Not ready for receiving</source>
        <translation>尚未准备好接收</translation>
    </message>
    <message>
        <source>Some parts of a frame are lost</source>
        <translation>帧部分丢失</translation>
    </message>
    <message>
        <source>The whole frame is lost</source>
        <translation>整帧丢失</translation>
    </message>
    <message>
        <source>The remote session already closes</source>
        <translation>远端会话已关闭</translation>
    </message>
    <message>
        <source>Session is disconnected</source>
        <translation>会话已断开</translation>
    </message>
    <message>
        <source>Server exit</source>
        <translation>服务器已退出</translation>
    </message>
    <message>
        <source>Client exit</source>
        <translation>客户端已退出</translation>
    </message>
    <message>
        <source>Module has not been initialized</source>
        <translation>模块尚未初始化</translation>
    </message>
    <message>
        <source>Client cannot send data</source>
        <translation>客户端无法发送数据</translation>
    </message>
    <message>
        <source>Already in sending</source>
        <translation>正在发送中</translation>
    </message>
    <message>
        <source>Sending  is terminated </source>
        <translation>发送已终止 </translation>
    </message>
    <message>
        <source>Password length is wrong</source>
        <translation>密码长度错误</translation>
    </message>
    <message>
        <source>Session has been closed</source>
        <translation>会话已关闭</translation>
    </message>
    <message>
        <source>Moudule deinitialized</source>
        <translation>模块已反初始化</translation>
    </message>
    <message>
        <source>Channel is used</source>
        <translation>通道已被占用</translation>
    </message>
    <message>
        <source>Waiting key frame</source>
        <translation>正在等待关键帧</translation>
    </message>
    <message>
        <source>Reset buffer</source>
        <translation>重置缓冲区</translation>
    </message>
    <message>
        <source>Queue is full</source>
        <translation>队列已满</translation>
    </message>
    <message>
        <source>Module is already initialized</source>
        <translation>模块已初始化</translation>
    </message>
    <message>
        <source>Clean buffer </source>
        <translation>清空缓冲区 </translation>
    </message>
    <message>
        <source>Please try again one minute later！</source>
        <translation>请在 1 分钟后重试</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>You are not the primary user of the device!</source>
        <translation>您不是该设备的主用户</translation>
    </message>
    <message>
        <source>Device is not belong to you</source>
        <translation>该设备不属于您</translation>
    </message>
    <message>
        <source>Device has been bound</source>
        <translation>设备已被绑定</translation>
    </message>
    <message>
        <source>WeChat has been bound, please log in and unbind using WeChat</source>
        <translation>已绑定 WeChat，请使用 WeChat 登录后解绑</translation>
    </message>
    <message>
        <source>No email or mobile phone login</source>
        <translation>未使用邮箱或手机号登录</translation>
    </message>
    <message>
        <source>System error! Can not send email</source>
        <translation>系统错误，无法发送邮件</translation>
    </message>
    <message>
        <source>System object error!</source>
        <translation>系统对象错误</translation>
    </message>
    <message>
        <source>Already send the code, please check it or get it again after 10m</source>
        <translation>验证码已发送，请查收，或在 10 分钟后重新获取</translation>
    </message>
    <message>
        <source>please check code or get it again after 1m</source>
        <translation>请查收验证码，或在 1 分钟后重新获取</translation>
    </message>
    <message>
        <source>Mail doesn&apos;t exist!</source>
        <translation>邮箱不存在</translation>
    </message>
    <message>
        <source>Phone format error</source>
        <translation>手机号格式错误</translation>
    </message>
    <message>
        <source>Phone already existed!</source>
        <translation>手机号已存在</translation>
    </message>
    <message>
        <source>Phone doesn&apos;t exist!</source>
        <translation>手机号不存在</translation>
    </message>
    <message>
        <source>Mail already existed!</source>
        <translation>邮箱已存在</translation>
    </message>
    <message>
        <source>Account doesn&apos;t exist!</source>
        <translation>账号不存在</translation>
    </message>
    <message>
        <source>Email format error！</source>
        <translation>邮箱格式错误</translation>
    </message>
    <message>
        <source>The username not conform to the rules!</source>
        <translation>用户名不符合规则</translation>
    </message>
    <message>
        <source>The password not conform to the rules!</source>
        <translation>密码不符合规则</translation>
    </message>
    <message>
        <source>user doesn&apos;t activated</source>
        <translation>用户未激活</translation>
    </message>
    <message>
        <source>Error password</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>Fingerprint login is not turned on</source>
        <translation>未开启指纹登录</translation>
    </message>
    <message>
        <source>The qr code has expired</source>
        <translation>二维码已过期</translation>
    </message>
    <message>
        <source>The code has expired</source>
        <translation>验证码已过期</translation>
    </message>
    <message>
        <source>The verification code is wrong</source>
        <translation>验证码错误</translation>
    </message>
    <message>
        <source>Data does not exists!</source>
        <translation>数据不存在</translation>
    </message>
    <message>
        <source>Data already exists!</source>
        <translation>数据已存在</translation>
    </message>
    <message>
        <source>Delete error</source>
        <translation>删除失败</translation>
    </message>
    <message>
        <source>Update error</source>
        <translation>更新失败</translation>
    </message>
    <message>
        <source>ADD error</source>
        <translation>添加失败</translation>
    </message>
    <message>
        <source>Nickname repeated</source>
        <translation>昵称重复</translation>
    </message>
    <message>
        <source>The link has expired!</source>
        <translation>链接已过期</translation>
    </message>
    <message>
        <source>Please ReLogin! errmsg token</source>
        <translation>令牌错误，请重新登录</translation>
    </message>
    <message>
        <source>You don not have permission to access this!</source>
        <translation>您没有访问权限</translation>
    </message>
    <message>
        <source>Please confirm the request url!</source>
        <translation>请确认请求的 URL</translation>
    </message>
    <message>
        <source>Database Error!</source>
        <translation>数据库错误</translation>
    </message>
    <message>
        <source>Wrong parameters!</source>
        <translation>参数错误</translation>
    </message>
    <message>
        <source>System Maintaining!</source>
        <translation>系统维护中</translation>
    </message>
    <message>
        <source>App Version too low, please upgrade!</source>
        <translation>应用版本过低，请升级</translation>
    </message>
    <message>
        <source>Query Database Error</source>
        <translation>查询数据库出错</translation>
    </message>
    <message>
        <source>Upload file error</source>
        <translation>上传文件失败</translation>
    </message>
    <message>
        <source>The file does not exist!</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>Do not downgrade</source>
        <translation>不允许降级</translation>
    </message>
    <message>
        <source>Area needs to be consistent</source>
        <translation>区域须一致</translation>
    </message>
    <message>
        <source>Storage rules cannot be changed during the validity period</source>
        <translation>有效期内不能更改存储规则</translation>
    </message>
    <message>
        <source>Authorization expires</source>
        <translation>授权已过期</translation>
    </message>
    <message>
        <source>There is no information about this version!</source>
        <translation>没有该版本的信息</translation>
    </message>
    <message>
        <source>Getting URL failure!</source>
        <translation>获取 URL 失败</translation>
    </message>
    <message>
        <source>No update!</source>
        <translation>没有更新</translation>
    </message>
    <message>
        <source>Error filename</source>
        <translation>文件名错误</translation>
    </message>
    <message>
        <source>Version does not support this feature!</source>
        <translation>该版本不支持此功能</translation>
    </message>
    <message>
        <source>Cause of file operation error</source>
        <translation>文件操作出错</translation>
    </message>
    <message>
        <source>The download file does not exist!</source>
        <translation>下载的文件不存在</translation>
    </message>
    <message>
        <source>Customer number, customer confidentiality error</source>
        <translation>客户编号或客户密钥错误</translation>
    </message>
    <message>
        <source>Check your configuration: no customer number, customer confidentiality</source>
        <translation>请检查配置：缺少客户编号或客户密钥</translation>
    </message>
    <message>
        <source>The authorization code does not exist. Please reauthorize</source>
        <translation>授权码不存在，请重新授权</translation>
    </message>
    <message>
        <source>The request method is incorrect. Please contact the developer</source>
        <translation>请求方法错误，请联系开发者</translation>
    </message>
    <message>
        <source>Wrong configuration, wrong customer number</source>
        <translation>配置错误：客户编号不正确</translation>
    </message>
    <message>
        <source>Configuration error. The path value is incorrect&apos;</source>
        <translation>配置错误：路径值不正确</translation>
    </message>
    <message>
        <source>timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>server refused the connection</source>
        <translation>服务器拒绝连接</translation>
    </message>
    <message>
        <source>server closed the connection prematurely</source>
        <translation>服务器提前关闭了连接</translation>
    </message>
    <message>
        <source>host name was not found</source>
        <translation>找不到主机名</translation>
    </message>
    <message>
        <source>via closed before finished</source>
        <translation>操作在完成前被取消</translation>
    </message>
    <message>
        <source>SSL/TLS handshake failed</source>
        <translation>SSL/TLS 握手失败</translation>
    </message>
    <message>
        <source>disconnection from the network</source>
        <translation>网络连接已断开</translation>
    </message>
    <message>
        <source>initiated roaming to another access point</source>
        <translation>正在漫游到其他接入点</translation>
    </message>
    <message>
        <source>platform policy</source>
        <translation>受平台策略限制</translation>
    </message>
    <message>
        <source>the maximum limit was reached</source>
        <translation>已达到上限</translation>
    </message>
    <message>
        <source>API detected a redirect</source>
        <translation>API 检测到重定向</translation>
    </message>
    <message>
        <source>unknown network error</source>
        <translation>未知网络错误</translation>
    </message>
    <message>
        <source>proxy server was refused</source>
        <translation>代理服务器拒绝连接</translation>
    </message>
    <message>
        <source>proxy server closed the connection</source>
        <translation>代理服务器关闭了连接</translation>
    </message>
    <message>
        <source>proxy host name was not found</source>
        <translation>找不到代理服务器主机名</translation>
    </message>
    <message>
        <source>proxy timed out</source>
        <translation>代理服务器超时</translation>
    </message>
    <message>
        <source>proxy requires did not accept credentials offered</source>
        <translation>代理服务器需要认证，但未接受所提供的凭据</translation>
    </message>
    <message>
        <source>unknown proxy-related error</source>
        <translation>未知代理错误</translation>
    </message>
    <message>
        <source>access was denied</source>
        <translation>访问被拒绝</translation>
    </message>
    <message>
        <source>operation is not permitted</source>
        <translation>不允许执行该操作</translation>
    </message>
    <message>
        <source>remote was not found at the server</source>
        <translation>在服务器上找不到远程内容</translation>
    </message>
    <message>
        <source>request can not resend</source>
        <translation>无法重新发送请求</translation>
    </message>
    <message>
        <source>conflict with the current state</source>
        <translation>与当前状态冲突</translation>
    </message>
    <message>
        <source>resource is no longer available</source>
        <translation>资源已不可用</translation>
    </message>
    <message>
        <source>unknown content error</source>
        <translation>未知内容错误</translation>
    </message>
    <message>
        <source>the protocol is not known</source>
        <translation>未知协议</translation>
    </message>
    <message>
        <source>the requested operation is invalid</source>
        <translation>请求的操作无效</translation>
    </message>
    <message>
        <source>a breakdown in protocol was detected</source>
        <translation>检测到协议异常</translation>
    </message>
    <message>
        <source>the server encountered an unexpected condition</source>
        <translation>服务器遇到意外情况</translation>
    </message>
    <message>
        <source>server does not support the functionality</source>
        <translation>服务器不支持该功能</translation>
    </message>
    <message>
        <source>server is unable to handle the request</source>
        <translation>服务器无法处理该请求</translation>
    </message>
    <message>
        <source>unknown server error</source>
        <translation>未知服务器错误</translation>
    </message>
    <message>
        <source>No process:</source>
        <translation>未处理的错误：</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
<context>
    <name>EscAlert</name>
    <message>
        <source>Press ESC to exit the full screen</source>
        <translation>按 ESC 退出全屏</translation>
    </message>
</context>
<context>
    <name>GetMsg</name>
    <message>
        <source>no record has been found</source>
        <translation>未找到录像</translation>
    </message>
    <message>
        <source>Failed to configure the senitivity of smart detection</source>
        <translation>智能侦测灵敏度设置失败</translation>
    </message>
    <message>
        <source>Failed to configure password</source>
        <translation>密码设置失败</translation>
    </message>
    <message>
        <source>Playback video data does not exist.</source>
        <translation>回放录像数据不存在。</translation>
    </message>
    <message>
        <source>Failed to configure wireless network</source>
        <translation>无线网络设置失败</translation>
    </message>
    <message>
        <source>Does not support simultaneous remote playback.</source>
        <translation>不支持同时远程回放。</translation>
    </message>
    <message>
        <source>Device cannot modify time zone</source>
        <translation>设备无法修改时区</translation>
    </message>
    <message>
        <source>Failed to configure the mode of smart detection</source>
        <translation>智能侦测模式设置失败</translation>
    </message>
</context>
<context>
    <name>GlWidgetViewWindow</name>
    <message>
        <source>fail to create vertex shader</source>
        <translation>创建顶点着色器失败</translation>
    </message>
    <message>
        <source>fail to create fragment shader</source>
        <translation>创建片段着色器失败</translation>
    </message>
    <message>
        <source>fail to add vertex shader</source>
        <translation>添加顶点着色器失败</translation>
    </message>
    <message>
        <source>fail to add fragment shader</source>
        <translation>添加片段着色器失败</translation>
    </message>
    <message>
        <source>fail to link shaders</source>
        <translation>链接着色器失败</translation>
    </message>
    <message>
        <source>fail to bind shaders</source>
        <translation>绑定着色器失败</translation>
    </message>
</context>
<context>
    <name>IoConnect</name>
    <message>
        <source>Not Found Input Device.</source>
        <translation>未找到输入设备。</translation>
    </message>
    <message>
        <source>no record has been found</source>
        <translation>未找到录像</translation>
    </message>
</context>
<context>
    <name>LabelFoldBtn</name>
    <message>
        <source>Fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Unfold</source>
        <translation>展开</translation>
    </message>
</context>
<context>
    <name>LabelFullScreen</name>
    <message>
        <source>Exit Full Screen</source>
        <translation>退出全屏</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
</context>
<context>
    <name>LabelRecordBtn</name>
    <message>
        <source>Stop Recording</source>
        <translation>停止录像</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录像</translation>
    </message>
</context>
<context>
    <name>LabelShotBtn</name>
    <message>
        <source>Screenshot</source>
        <translation>截图</translation>
    </message>
</context>
<context>
    <name>LabelWinBtn</name>
    <message>
        <source>Windows: %1</source>
        <translation>窗口数：%1</translation>
    </message>
</context>
<context>
    <name>LabelWindowNumBtn</name>
    <message>
        <source>Layout</source>
        <translation>画面布局</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Debug Record</source>
        <translation>调试记录</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>KELO Network Video Monitor</source>
        <translation>KELO 网络视频监控</translation>
    </message>
    <message>
        <source>BRISEN HD Video Monitor</source>
        <translation>BRISEN HD 视频监控</translation>
    </message>
    <message>
        <source>Fenrad Network Video Monitor</source>
        <translation>Fenrad 网络视频监控</translation>
    </message>
    <message>
        <source>Network Video Monitor</source>
        <translation>网络视频监控</translation>
    </message>
    <message>
        <source>Unsigned</source>
        <translation>未登录</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
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
        <translation>控制面板</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>设备列表</translation>
    </message>
    <message>
        <source>PTZ Control</source>
        <translation>云台控制</translation>
    </message>
    <message>
        <source>System Info</source>
        <translation>系统信息</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>页:</translation>
    </message>
    <message>
        <source>,Total:</source>
        <translation>,共:</translation>
    </message>
    <message>
        <source>[Unselected]</source>
        <translation>[未选择]</translation>
    </message>
</context>
<context>
    <name>MenuDevList</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Drop down to load more</source>
        <translation>下拉加载更多</translation>
    </message>
    <message>
        <source>Not part of this version yet</source>
        <translation>此版本尚未提供</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>No device matches the search</source>
        <translation>没有符合搜索的设备</translation>
    </message>
    <message>
        <source>The local list is always up to date</source>
        <translation>本地列表始终是最新的</translation>
    </message>
    <message>
        <source>No devices yet. The user&apos;s guide tells how to add the first one.</source>
        <translation>还没有设备。用户指南说明了如何添加第一台设备。</translation>
    </message>
</context>
<context>
    <name>PageBtn</name>
    <message>
        <source>Previous Page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>下一页</translation>
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
        <translation>是否重新打开上次关闭时已打开的通道</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>ScreenShotAlert</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
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
        <translation>64 位</translation>
    </message>
    <message>
        <source>32bit</source>
        <translation>32 位</translation>
    </message>
</context>
<context>
    <name>UserService</name>
    <message>
        <source>No cloud address is configured; use Local Login.</source>
        <translation>未配置云服务地址，请使用本地登录。</translation>
    </message>
    <message>
        <source>This version cannot sign in to the cloud yet; use Local Login.</source>
        <translation>此版本暂不支持登录云服务，请使用本地登录。</translation>
    </message>
    <message>
        <source>Network Error</source>
        <translation>网络错误</translation>
    </message>
</context>
<context>
    <name>WindowLogin</name>
    <message>
        <source>Show or hide the password</source>
        <translation>显示或隐藏密码</translation>
    </message>
    <message>
        <source>Remember Password</source>
        <translation>记住密码</translation>
    </message>
    <message>
        <source>Forget Password?</source>
        <translation>忘记密码？</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Local Login</source>
        <translation>本地登录</translation>
    </message>
    <message>
        <source>No account yet?</source>
        <translation>还没有账号？</translation>
    </message>
    <message>
        <source>Register immediately.</source>
        <translation>立即注册</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Chinese Simply</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Chinese Traditional</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Signing in, please wait...</source>
        <translation>正在登录，请稍候...</translation>
    </message>
    <message>
        <source>Please enter the username.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Please enter the password.</source>
        <translation>请输入密码。</translation>
    </message>
    <message>
        <source>Enter your username</source>
        <translation>请输入用户名</translation>
    </message>
    <message>
        <source>Enter your password</source>
        <translation>请输入密码</translation>
    </message>
</context>
</TS>
