<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BackdropMessage</name>
    <message>
        <source>Location access is required
to scan for networks.

Please enable it
in System Settings.</source>
        <translation>扫描网络需要
访问位置信息的权限。

请在系统设置中
启用该权限。</translation>
    </message>
    <message>
        <source>Select a network to view details</source>
        <translation>选择一个网络以查看详细信息</translation>
    </message>
    <message>
        <source>Scanning for networks.
Please wait...</source>
        <translation>正在扫描网络。
请稍候…</translation>
    </message>
</context>
<context>
    <name>ChartLegend</name>
    <message>
        <source>Signal History</source>
        <translation>信号历史</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>噪声</translation>
    </message>
</context>
<context>
    <name>HoverableDot</name>
    <message>
        <source>RSSI: %1 dBm</source>
        <translation>RSSI：%1 dBm</translation>
    </message>
    <message>
        <source>Noise: %1 dBm</source>
        <translation>噪声：%1 dBm</translation>
    </message>
</context>
<context>
    <name>JoinFailure</name>
    <message>
        <source>The Wi-Fi radio is off</source>
        <translation>Wi-Fi 已关闭</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is gone</source>
        <translation>Wi-Fi 接口 %1 已不存在</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is not available</source>
        <translation>Wi-Fi 接口 %1 不可用</translation>
    </message>
    <message>
        <source>The network&apos;s name is not known</source>
        <translation>网络名称未知</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager 未在运行</translation>
    </message>
    <message>
        <source>NetworkManager does not manage the Wi-Fi interface %1</source>
        <translation>NetworkManager 未管理 Wi-Fi 接口 %1</translation>
    </message>
    <message>
        <source>The network does not let this machine in: the password is probably not correct</source>
        <translation>网络拒绝了此计算机：密码可能不正确</translation>
    </message>
    <message>
        <source>The network does not let this machine in</source>
        <translation>网络拒绝了此计算机</translation>
    </message>
    <message>
        <source>The password is not correct</source>
        <translation>密码不正确</translation>
    </message>
    <message>
        <source>The login that is stored for the network is not correct</source>
        <translation>为该网络保存的登录信息不正确</translation>
    </message>
    <message>
        <source>The network is out of reach</source>
        <translation>网络超出范围</translation>
    </message>
    <message>
        <source>The network gave this machine no address</source>
        <translation>网络未给此计算机分配地址</translation>
    </message>
    <message>
        <source>The access point broke off the attempt to join</source>
        <translation>接入点中断了连接尝试</translation>
    </message>
    <message>
        <source>The access point did not answer in time</source>
        <translation>接入点未及时响应</translation>
    </message>
    <message>
        <source>This machine&apos;s Wi-Fi service failed to join the network</source>
        <translation>此计算机的 Wi-Fi 服务未能连接到网络</translation>
    </message>
    <message>
        <source>The Wi-Fi interface is gone</source>
        <translation>Wi-Fi 接口已不存在</translation>
    </message>
    <message>
        <source>Networking was switched off, or the machine went to sleep</source>
        <translation>网络已关闭，或计算机进入了睡眠</translation>
    </message>
    <message>
        <source>The attempt to join was ended from elsewhere</source>
        <translation>连接尝试被其他程序终止</translation>
    </message>
    <message>
        <source>Another connection was started meanwhile</source>
        <translation>期间启动了另一个连接</translation>
    </message>
    <message>
        <source>NetworkManager failed to join the network, for its reason number %1</source>
        <translation>NetworkManager 未能连接到网络（原因代码 %1）</translation>
    </message>
    <message>
        <source>The system does not permit this user to join networks</source>
        <translation>系统不允许此用户连接网络</translation>
    </message>
    <message>
        <source>NetworkManager ended during the attempt to join</source>
        <translation>连接过程中 NetworkManager 已退出</translation>
    </message>
    <message>
        <source>The attempt to join was stopped</source>
        <translation>连接尝试已停止</translation>
    </message>
    <message>
        <source>The network gave this machine no address in time</source>
        <translation>网络未及时给此计算机分配地址</translation>
    </message>
    <message>
        <source>Joining the network took too long</source>
        <translation>连接网络耗时过长</translation>
    </message>
    <message>
        <source>The network asks for a login of its own kind, which has to be set up in the system&apos;s network settings first</source>
        <translation>该网络需要专用的登录方式，请先在系统的网络设置中配置</translation>
    </message>
    <message>
        <source>The network needs a password</source>
        <translation>该网络需要密码</translation>
    </message>
    <message>
        <source>The password is not correct: it holds a character that cannot be part of one</source>
        <translation>密码不正确：包含不允许的字符</translation>
    </message>
    <message>
        <source>The password is not correct: a WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits</source>
        <translation>密码不正确：WEP 密钥为 5 或 13 个字符，或 10 或 26 位十六进制数字</translation>
    </message>
    <message>
        <source>The password is not correct: it has 8 to 63 characters, or 64 hexadecimal digits</source>
        <translation>密码不正确：应为 8 至 63 个字符，或 64 位十六进制数字</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager 没有响应</translation>
    </message>
    <message>
        <source>NetworkManager does not permit this: %1</source>
        <translation>NetworkManager 不允许此操作：%1</translation>
    </message>
    <message>
        <source>NetworkManager cannot do this now: %1</source>
        <translation>NetworkManager 目前无法执行此操作：%1</translation>
    </message>
    <message>
        <source>NetworkManager does not know the device: %1</source>
        <translation>NetworkManager 无法识别该设备：%1</translation>
    </message>
    <message>
        <source>NetworkManager gave an answer of a wrong type: %1</source>
        <translation>NetworkManager 返回了类型错误的响应：%1</translation>
    </message>
    <message>
        <source>NetworkManager reports an error: %1</source>
        <translation>NetworkManager 报告错误：%1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Aerolith</source>
        <translation>关于 Aerolith</translation>
    </message>
    <message>
        <source>Aerolith %1</source>
        <translation>Aerolith %1</translation>
    </message>
    <message>
        <source>Wi-Fi survey for the Linux desktop.
Free software under the MIT License.</source>
        <translation>适用于 Linux 桌面的 Wi-Fi 勘测工具。
基于 MIT 许可证的自由软件。</translation>
    </message>
    <message>
        <source>&amp;Aerolith</source>
        <translation>&amp;Aerolith</translation>
    </message>
    <message>
        <source>&amp;About Aerolith</source>
        <translation>关于 Aerolith(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>查看(&amp;V)</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>切换侧边栏(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Contact &amp;Support</source>
        <translation>联系支持(&amp;S)</translation>
    </message>
</context>
<context>
    <name>NetworkDetails</name>
    <message>
        <source>Received Signal Strength Indicator - measures how strong the WiFi signal is</source>
        <translation>接收信号强度指示 – 衡量 Wi-Fi 信号的强弱</translation>
    </message>
    <message>
        <source>Background interference level that can affect signal quality</source>
        <translation>可能影响信号质量的背景干扰水平</translation>
    </message>
    <message>
        <source>Signal-to-Noise Ratio - higher values mean better signal quality</source>
        <translation>信噪比 – 数值越高，信号质量越好</translation>
    </message>
    <message>
        <source>Network name broadcast by the access point</source>
        <translation>接入点广播的网络名称</translation>
    </message>
    <message>
        <source>Unique identifier (MAC address) of the access point</source>
        <translation>接入点的唯一标识符（MAC 地址）</translation>
    </message>
    <message>
        <source>WiFi channel number used for transmission</source>
        <translation>用于传输的 Wi-Fi 信道编号</translation>
    </message>
    <message>
        <source>Frequency band used by the network (2.4 GHz or 5 GHz)</source>
        <translation>网络使用的频段（2.4 GHz 或 5 GHz）</translation>
    </message>
    <message>
        <source>Width of the frequency channel - wider channels can provide higher speeds</source>
        <translation>信道的频率宽度 – 更宽的信道可提供更高的速度</translation>
    </message>
    <message>
        <source>Security protocol used to protect the network</source>
        <translation>用于保护网络的安全协议</translation>
    </message>
    <message>
        <source>Country code defining regional WiFi regulations</source>
        <translation>决定当地 Wi-Fi 法规的国家/地区代码</translation>
    </message>
    <message>
        <source>Time between router beacon transmissions in milliseconds</source>
        <translation>路由器发送信标的时间间隔（毫秒）</translation>
    </message>
    <message>
        <source>Infrastructure networks use access points, Ad-Hoc are direct device-to-device</source>
        <translation>基础设施网络使用接入点，自组织网络在设备之间直接通信</translation>
    </message>
    <message>
        <source>Supported WiFi standards and transmission modes</source>
        <translation>支持的 Wi-Fi 标准和传输模式</translation>
    </message>
    <message>
        <source>latest %1 dBm</source>
        <translation>最新 %1 dBm</translation>
    </message>
    <message>
        <source>lowest %1 dBm</source>
        <translation>最低 %1 dBm</translation>
    </message>
    <message>
        <source>highest %1 dBm</source>
        <translation>最高 %1 dBm</translation>
    </message>
    <message>
        <source>1 sample</source>
        <translation>1 个采样</translation>
    </message>
    <message numerus="yes">
        <source>%n samples</source>
        <translation>
            <numerusform>%n 个采样</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NetworkRowInMenu</name>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>%1, joined</source>
        <translation>%1，已连接</translation>
    </message>
    <message>
        <source>Connect to %1, %2</source>
        <extracomment>%1 is a network, %2 its security.</extracomment>
        <translation>连接到 %1，%2</translation>
    </message>
</context>
<context>
    <name>NetworkRowView</name>
    <message>
        <source>%1 • Ch %2 (%3)</source>
        <extracomment>The second line of a row: its security, its channel&apos;s number and its band, as in &quot;WPA2 • Ch 36 (5 GHz)&quot;.</extracomment>
        <translation>%1 • 信道 %2 (%3)</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>信道 %1</translation>
    </message>
    <message>
        <source>%1 of %2 bars</source>
        <translation>%2 格中的 %1 格</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>已隐藏</translation>
    </message>
</context>
<context>
    <name>NetworkTexts</name>
    <message>
        <source>Open</source>
        <extracomment>The security of a network that anybody may join.</extracomment>
        <translation>开放</translation>
    </message>
    <message>
        <source>Secure</source>
        <extracomment>The security of a network by some means that has no short name.</extracomment>
        <translation>加密</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>The band of a network.</extracomment>
        <translation>未知</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a text that is read out, as in &quot;Café, WPA2, channel 6&quot;.</extracomment>
        <translation>，</translation>
    </message>
</context>
<context>
    <name>UpdateContents</name>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Aerolith is up to date</source>
        <translation>Aerolith 已是最新版本</translation>
    </message>
    <message>
        <source>There is nothing newer than version %1.</source>
        <translation>没有比 %1 更新的版本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Aerolith %1 is available</source>
        <translation>Aerolith %1 可供下载</translation>
    </message>
    <message>
        <source>You have version %1. The download is %2.</source>
        <translation>您当前的版本为 %1。下载大小为 %2。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Downloading Aerolith %1…</source>
        <translation>正在下载 Aerolith %1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Aerolith %1 is downloaded</source>
        <translation>Aerolith %1 已下载</translation>
    </message>
    <message>
        <source>Its signature is right. It was saved as
%1</source>
        <translation>签名有效。已保存为
%1</translation>
    </message>
    <message>
        <source>Updates could not be checked</source>
        <translation>无法检查更新</translation>
    </message>
    <message>
        <source>The update was not downloaded</source>
        <translation>未能下载更新</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UpdateFailure</name>
    <message>
        <source>The update feed cannot be read: %1</source>
        <translation>无法读取更新源：%1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>Nothing can be saved in %1: %2</source>
        <translation>无法保存到 %1：%2</translation>
    </message>
    <message>
        <source>%1 has been silent for %2 seconds</source>
        <translation>%1 已有 %2 秒没有响应</translation>
    </message>
    <message>
        <source>%1 was not done after %2 seconds</source>
        <translation>%1 在 %2 秒后仍未完成</translation>
    </message>
    <message>
        <source>%1 answered with the HTTP status %2</source>
        <translation>%1 返回了 HTTP 状态 %2</translation>
    </message>
    <message>
        <source>%1 redirects to an address that is not https: %2</source>
        <translation>%1 重定向到了非 https 地址：%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 redirects more than %n times</source>
        <translation>
            <numerusform>%1 的重定向超过 %n 次</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no secure connection to %1: %2</source>
        <translation>无法与 %1 建立安全连接：%2</translation>
    </message>
    <message>
        <source>The connection to %1 ended after %2 bytes: %3</source>
        <translation>与 %1 的连接在 %2 字节后中断：%3</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>无法连接到 %1：%2</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that it should have</source>
        <translation>文件超过了应有的 %1 字节</translation>
    </message>
    <message>
        <source>The file has %1 bytes in place of the %2 that it should have</source>
        <translation>文件为 %1 字节，而应为 %2 字节</translation>
    </message>
    <message>
        <source>The file&apos;s signature is wrong: it does not come from the makers of Aerolith</source>
        <translation>文件签名错误：它并非来自 Aerolith 的开发者</translation>
    </message>
</context>
<context>
    <name>WiFiConnectionManager</name>
    <message>
        <source>Connection Failed</source>
        <translation>连接失败</translation>
    </message>
</context>
<context>
    <name>XdgWorkspace</name>
    <message>
        <source>Cannot open a tool for network diagnostics: not installed: %1</source>
        <translation>未安装网络诊断工具：%1</translation>
    </message>
</context>
<context>
    <name>aerolith::Alert</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
</context>
<context>
    <name>aerolith::Announcer</name>
    <message>
        <source>Scan failed</source>
        <translation>扫描失败</translation>
    </message>
    <message>
        <source>Scan finished: 1 network</source>
        <translation>扫描完成：1 个网络</translation>
    </message>
    <message numerus="yes">
        <source>Scan finished: %n networks</source>
        <translation>
            <numerusform>扫描完成：%n 个网络</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>aerolith::CheckForUpdatesView</name>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
</context>
<context>
    <name>aerolith::CustomSignalChart</name>
    <message>
        <source>Signal History</source>
        <translation>信号历史</translation>
    </message>
</context>
<context>
    <name>aerolith::DetailStatusBar</name>
    <message>
        <source>Export network data</source>
        <translation>导出网络数据</translation>
    </message>
    <message>
        <source>Refresh network data</source>
        <translation>刷新网络数据</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>正在扫描</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <extracomment>%1 is a time before now, as in &quot;5 sec. ago&quot;.</extracomment>
        <translation>上次发现：%1</translation>
    </message>
</context>
<context>
    <name>aerolith::MainWindow</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Wi-Fi interface information</source>
        <translation>Wi-Fi 接口信息</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>隐藏侧边栏</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>显示侧边栏</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkDetailView</name>
    <message>
        <source>Network details</source>
        <translation>网络详细信息</translation>
    </message>
    <message>
        <source>Signal Overview</source>
        <translation>信号概览</translation>
    </message>
    <message>
        <source>Network Information</source>
        <translation>网络信息</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkInfoDialog</name>
    <message>
        <source>Network Interface Information</source>
        <translation>网络接口信息</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>打开网络设置</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>aerolith::PasswordDialog</name>
    <message>
        <source>Connect to %1</source>
        <translation>连接到 %1</translation>
    </message>
    <message>
        <source>Enter the network password:</source>
        <translation>请输入网络密码：</translation>
    </message>
    <message>
        <source>Network password</source>
        <translation>网络密码</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
</context>
<context>
    <name>aerolith::SettingsView</name>
    <message>
        <source>Start at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Scan Settings</source>
        <translation>扫描设置</translation>
    </message>
    <message>
        <source>Scan Interval</source>
        <translation>扫描间隔</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>The scan interval beside its slider: seconds, in as little room as there is.</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>History Points</source>
        <translation>历史点数</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n 个点</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>aerolith::Sidebar</name>
    <message>
        <source>Networks</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>All Networks</source>
        <translation>所有网络</translation>
    </message>
    <message>
        <source>Hiding Hidden</source>
        <translation>不显示已隐藏的网络</translation>
    </message>
    <message numerus="yes">
        <source>%n Networks</source>
        <translation>
            <numerusform>%n 个网络</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Network</source>
        <translation>显示网络</translation>
    </message>
    <message>
        <source>Hide Network</source>
        <translation>隐藏网络</translation>
    </message>
</context>
<context>
    <name>aerolith::SidebarStatusBar</name>
    <message>
        <source>Export network list</source>
        <translation>导出网络列表</translation>
    </message>
    <message>
        <source>Clear network list</source>
        <translation>清空网络列表</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Signal Strength</source>
        <translation>信号强度</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>网络名称</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>信道</translation>
    </message>
    <message>
        <source>Security Type</source>
        <translation>安全类型</translation>
    </message>
</context>
<context>
    <name>aerolith::StatusMenuController</name>
    <message>
        <source>WiFi</source>
        <translation>Wi-Fi</translation>
    </message>
</context>
<context>
    <name>aerolith::StatusMenuView</name>
    <message>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>正在扫描</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Open App</source>
        <translation>打开应用</translation>
    </message>
</context>
<context>
    <name>aerolith::ToolsButton</name>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Wi-Fi Settings...</source>
        <translation>Wi-Fi 设置…</translation>
    </message>
    <message>
        <source>Wireless Diagnostics...</source>
        <translation>无线诊断…</translation>
    </message>
</context>
<context>
    <name>aerolith::UpdateDialog</name>
    <message>
        <source>Check once a day automatically</source>
        <translation>每天自动检查一次</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>新增内容</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>正在检查</translation>
    </message>
</context>
</TS>
