<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BackdropMessage</name>
    <message>
        <source>Location access is required
to scan for networks.

Please enable it
in System Settings.</source>
        <translation>ネットワークをスキャンするには
位置情報へのアクセスが必要です。

システムの設定で
許可してください。</translation>
    </message>
    <message>
        <source>Select a network to view details</source>
        <translation>ネットワークを選択すると詳細が表示されます</translation>
    </message>
    <message>
        <source>Scanning for networks.
Please wait...</source>
        <translation>ネットワークをスキャンしています。
お待ちください…</translation>
    </message>
</context>
<context>
    <name>ChartLegend</name>
    <message>
        <source>Signal History</source>
        <translation>信号の履歴</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>ノイズ</translation>
    </message>
</context>
<context>
    <name>HoverableDot</name>
    <message>
        <source>RSSI: %1 dBm</source>
        <translation>RSSI: %1 dBm</translation>
    </message>
    <message>
        <source>Noise: %1 dBm</source>
        <translation>ノイズ: %1 dBm</translation>
    </message>
</context>
<context>
    <name>JoinFailure</name>
    <message>
        <source>The Wi-Fi radio is off</source>
        <translation>Wi-Fi がオフになっています</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is gone</source>
        <translation>Wi-Fi インターフェース %1 がなくなりました</translation>
    </message>
    <message>
        <source>The Wi-Fi interface %1 is not available</source>
        <translation>Wi-Fi インターフェース %1 は利用できません</translation>
    </message>
    <message>
        <source>The network&apos;s name is not known</source>
        <translation>ネットワークの名前がわかりません</translation>
    </message>
    <message>
        <source>NetworkManager is not running</source>
        <translation>NetworkManager が動作していません</translation>
    </message>
    <message>
        <source>NetworkManager does not manage the Wi-Fi interface %1</source>
        <translation>NetworkManager は Wi-Fi インターフェース %1 を管理していません</translation>
    </message>
    <message>
        <source>The network does not let this machine in: the password is probably not correct</source>
        <translation>ネットワークがこのコンピューターの接続を拒否しました。パスワードが間違っている可能性があります</translation>
    </message>
    <message>
        <source>The network does not let this machine in</source>
        <translation>ネットワークがこのコンピューターの接続を拒否しました</translation>
    </message>
    <message>
        <source>The password is not correct</source>
        <translation>パスワードが正しくありません</translation>
    </message>
    <message>
        <source>The login that is stored for the network is not correct</source>
        <translation>このネットワーク用に保存されている認証情報が正しくありません</translation>
    </message>
    <message>
        <source>The network is out of reach</source>
        <translation>ネットワークが圏外です</translation>
    </message>
    <message>
        <source>The network gave this machine no address</source>
        <translation>ネットワークからアドレスが割り当てられませんでした</translation>
    </message>
    <message>
        <source>The access point broke off the attempt to join</source>
        <translation>アクセスポイントが接続処理を中断しました</translation>
    </message>
    <message>
        <source>The access point did not answer in time</source>
        <translation>アクセスポイントから時間内に応答がありませんでした</translation>
    </message>
    <message>
        <source>This machine&apos;s Wi-Fi service failed to join the network</source>
        <translation>このコンピューターの Wi-Fi サービスがネットワークに接続できませんでした</translation>
    </message>
    <message>
        <source>The Wi-Fi interface is gone</source>
        <translation>Wi-Fi インターフェースがなくなりました</translation>
    </message>
    <message>
        <source>Networking was switched off, or the machine went to sleep</source>
        <translation>ネットワークがオフにされたか、コンピューターがスリープしました</translation>
    </message>
    <message>
        <source>The attempt to join was ended from elsewhere</source>
        <translation>接続処理がほかの場所から終了されました</translation>
    </message>
    <message>
        <source>Another connection was started meanwhile</source>
        <translation>その間に別の接続が開始されました</translation>
    </message>
    <message>
        <source>NetworkManager failed to join the network, for its reason number %1</source>
        <translation>NetworkManager がネットワークに接続できませんでした（理由番号 %1）</translation>
    </message>
    <message>
        <source>The system does not permit this user to join networks</source>
        <translation>このユーザーにはネットワークに接続する権限がありません</translation>
    </message>
    <message>
        <source>NetworkManager ended during the attempt to join</source>
        <translation>接続処理中に NetworkManager が終了しました</translation>
    </message>
    <message>
        <source>The attempt to join was stopped</source>
        <translation>接続処理が中止されました</translation>
    </message>
    <message>
        <source>The network gave this machine no address in time</source>
        <translation>ネットワークから時間内にアドレスが割り当てられませんでした</translation>
    </message>
    <message>
        <source>Joining the network took too long</source>
        <translation>ネットワークへの接続に時間がかかりすぎました</translation>
    </message>
    <message>
        <source>The network asks for a login of its own kind, which has to be set up in the system&apos;s network settings first</source>
        <translation>このネットワークには独自の認証が必要です。先にシステムのネットワーク設定で設定してください</translation>
    </message>
    <message>
        <source>The network needs a password</source>
        <translation>このネットワークにはパスワードが必要です</translation>
    </message>
    <message>
        <source>The password is not correct: it holds a character that cannot be part of one</source>
        <translation>パスワードが正しくありません。使用できない文字が含まれています</translation>
    </message>
    <message>
        <source>The password is not correct: a WEP key has 5 or 13 characters, or 10 or 26 hexadecimal digits</source>
        <translation>パスワードが正しくありません。WEP キーは 5 文字または 13 文字、あるいは 16 進数で 10 桁または 26 桁です</translation>
    </message>
    <message>
        <source>The password is not correct: it has 8 to 63 characters, or 64 hexadecimal digits</source>
        <translation>パスワードが正しくありません。8～63 文字、または 16 進数で 64 桁です</translation>
    </message>
    <message>
        <source>NetworkManager does not answer</source>
        <translation>NetworkManager が応答しません</translation>
    </message>
    <message>
        <source>NetworkManager does not permit this: %1</source>
        <translation>NetworkManager により許可されていません: %1</translation>
    </message>
    <message>
        <source>NetworkManager cannot do this now: %1</source>
        <translation>NetworkManager は現在これを実行できません: %1</translation>
    </message>
    <message>
        <source>NetworkManager does not know the device: %1</source>
        <translation>NetworkManager がデバイスを認識していません: %1</translation>
    </message>
    <message>
        <source>NetworkManager gave an answer of a wrong type: %1</source>
        <translation>NetworkManager の応答の型が正しくありません: %1</translation>
    </message>
    <message>
        <source>NetworkManager reports an error: %1</source>
        <translation>NetworkManager がエラーを報告しました: %1</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>About Aerolith</source>
        <translation>Aerolith について</translation>
    </message>
    <message>
        <source>Aerolith %1</source>
        <translation>Aerolith %1</translation>
    </message>
    <message>
        <source>Wi-Fi survey for the Linux desktop.
Free software under the MIT License.</source>
        <translation>Linux デスクトップのための Wi-Fi 調査ツール。
MIT ライセンスのフリーソフトウェアです。</translation>
    </message>
    <message>
        <source>&amp;Aerolith</source>
        <translation>&amp;Aerolith</translation>
    </message>
    <message>
        <source>&amp;About Aerolith</source>
        <translation>Aerolith について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Toggle &amp;Sidebar</source>
        <translation>サイドバーの表示切り替え(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Contact &amp;Support</source>
        <translation>サポートに連絡(&amp;S)</translation>
    </message>
</context>
<context>
    <name>NetworkDetails</name>
    <message>
        <source>Received Signal Strength Indicator - measures how strong the WiFi signal is</source>
        <translation>受信信号強度（RSSI） - Wi-Fi 信号の強さを示します</translation>
    </message>
    <message>
        <source>Background interference level that can affect signal quality</source>
        <translation>信号品質に影響する背景ノイズのレベル</translation>
    </message>
    <message>
        <source>Signal-to-Noise Ratio - higher values mean better signal quality</source>
        <translation>信号対雑音比 - 値が大きいほど信号品質が良好です</translation>
    </message>
    <message>
        <source>Network name broadcast by the access point</source>
        <translation>アクセスポイントが通知しているネットワーク名</translation>
    </message>
    <message>
        <source>Unique identifier (MAC address) of the access point</source>
        <translation>アクセスポイントの固有の識別子（MAC アドレス）</translation>
    </message>
    <message>
        <source>WiFi channel number used for transmission</source>
        <translation>通信に使われている Wi-Fi チャンネルの番号</translation>
    </message>
    <message>
        <source>Frequency band used by the network (2.4 GHz or 5 GHz)</source>
        <translation>ネットワークが使用している周波数帯（2.4 GHz または 5 GHz）</translation>
    </message>
    <message>
        <source>Width of the frequency channel - wider channels can provide higher speeds</source>
        <translation>周波数チャンネルの幅 - 幅が広いほど高速な通信が可能です</translation>
    </message>
    <message>
        <source>Security protocol used to protect the network</source>
        <translation>ネットワークの保護に使われているセキュリティプロトコル</translation>
    </message>
    <message>
        <source>Country code defining regional WiFi regulations</source>
        <translation>地域ごとの Wi-Fi 規制を定める国コード</translation>
    </message>
    <message>
        <source>Time between router beacon transmissions in milliseconds</source>
        <translation>ルーターがビーコンを送信する間隔（ミリ秒）</translation>
    </message>
    <message>
        <source>Infrastructure networks use access points, Ad-Hoc are direct device-to-device</source>
        <translation>インフラストラクチャではアクセスポイントを使用し、アドホックでは機器どうしが直接通信します</translation>
    </message>
    <message>
        <source>Supported WiFi standards and transmission modes</source>
        <translation>対応している Wi-Fi 規格と通信モード</translation>
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
        <translation>測定値 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%n samples</source>
        <translation>
            <numerusform>測定値 %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NetworkRowInMenu</name>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>%1, joined</source>
        <translation>%1、接続済み</translation>
    </message>
    <message>
        <source>Connect to %1, %2</source>
        <extracomment>%1 is a network, %2 its security.</extracomment>
        <translation>%1 に接続、%2</translation>
    </message>
</context>
<context>
    <name>NetworkRowView</name>
    <message>
        <source>%1 • Ch %2 (%3)</source>
        <extracomment>The second line of a row: its security, its channel&apos;s number and its band, as in &quot;WPA2 • Ch 36 (5 GHz)&quot;.</extracomment>
        <translation>%1 • %2 ch (%3)</translation>
    </message>
    <message>
        <source>%1 dBm</source>
        <translation>%1 dBm</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>チャンネル %1</translation>
    </message>
    <message>
        <source>%1 of %2 bars</source>
        <translation>%2 本中 %1 本</translation>
    </message>
    <message>
        <source>joined</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>非表示</translation>
    </message>
</context>
<context>
    <name>NetworkTexts</name>
    <message>
        <source>Open</source>
        <extracomment>The security of a network that anybody may join.</extracomment>
        <translation>オープン</translation>
    </message>
    <message>
        <source>Secure</source>
        <extracomment>The security of a network by some means that has no short name.</extracomment>
        <translation>保護あり</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>The band of a network.</extracomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a text that is read out, as in &quot;Café, WPA2, channel 6&quot;.</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>UpdateContents</name>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Aerolith is up to date</source>
        <translation>Aerolith は最新です</translation>
    </message>
    <message>
        <source>There is nothing newer than version %1.</source>
        <translation>バージョン %1 より新しいものはありません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Aerolith %1 is available</source>
        <translation>Aerolith %1 が利用できます</translation>
    </message>
    <message>
        <source>You have version %1. The download is %2.</source>
        <translation>現在のバージョンは %1 です。ダウンロードのサイズは %2 です。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Downloading Aerolith %1…</source>
        <translation>Aerolith %1 をダウンロードしています…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中 %1</translation>
    </message>
    <message>
        <source>Aerolith %1 is downloaded</source>
        <translation>Aerolith %1 をダウンロードしました</translation>
    </message>
    <message>
        <source>Its signature is right. It was saved as
%1</source>
        <translation>署名は正当です。次の名前で保存しました:
%1</translation>
    </message>
    <message>
        <source>Updates could not be checked</source>
        <translation>アップデートを確認できませんでした</translation>
    </message>
    <message>
        <source>The update was not downloaded</source>
        <translation>アップデートをダウンロードできませんでした</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UpdateFailure</name>
    <message>
        <source>The update feed cannot be read: %1</source>
        <translation>アップデートのフィードを読み込めません: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>Nothing can be saved in %1: %2</source>
        <translation>%1 に保存できません: %2</translation>
    </message>
    <message>
        <source>%1 has been silent for %2 seconds</source>
        <translation>%1 から %2 秒間応答がありません</translation>
    </message>
    <message>
        <source>%1 was not done after %2 seconds</source>
        <translation>%1 からの受信が %2 秒以内に終わりませんでした</translation>
    </message>
    <message>
        <source>%1 answered with the HTTP status %2</source>
        <translation>%1 が HTTP ステータス %2 を返しました</translation>
    </message>
    <message>
        <source>%1 redirects to an address that is not https: %2</source>
        <translation>%1 が https ではないアドレスに転送しました: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 redirects more than %n times</source>
        <translation>
            <numerusform>%1 が %n 回を超えて転送しました</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no secure connection to %1: %2</source>
        <translation>%1 との安全な接続を確立できません: %2</translation>
    </message>
    <message>
        <source>The connection to %1 ended after %2 bytes: %3</source>
        <translation>%1 との接続が %2 バイトで切れました: %3</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1 に接続できません: %2</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that it should have</source>
        <translation>ファイルが本来の %1 バイトより長くなっています</translation>
    </message>
    <message>
        <source>The file has %1 bytes in place of the %2 that it should have</source>
        <translation>ファイルは本来の %2 バイトではなく %1 バイトです</translation>
    </message>
    <message>
        <source>The file&apos;s signature is wrong: it does not come from the makers of Aerolith</source>
        <translation>ファイルの署名が正しくありません。Aerolith の開発元のものではありません</translation>
    </message>
</context>
<context>
    <name>WiFiConnectionManager</name>
    <message>
        <source>Connection Failed</source>
        <translation>接続に失敗しました</translation>
    </message>
</context>
<context>
    <name>XdgWorkspace</name>
    <message>
        <source>Cannot open a tool for network diagnostics: not installed: %1</source>
        <translation>ネットワーク診断ツールがインストールされていません: %1</translation>
    </message>
</context>
<context>
    <name>aerolith::Alert</name>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
</context>
<context>
    <name>aerolith::Announcer</name>
    <message>
        <source>Scan failed</source>
        <translation>スキャンに失敗しました</translation>
    </message>
    <message>
        <source>Scan finished: 1 network</source>
        <translation>スキャン完了: ネットワーク 1 件</translation>
    </message>
    <message numerus="yes">
        <source>Scan finished: %n networks</source>
        <translation>
            <numerusform>スキャン完了: ネットワーク %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>aerolith::CheckForUpdatesView</name>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
</context>
<context>
    <name>aerolith::CustomSignalChart</name>
    <message>
        <source>Signal History</source>
        <translation>信号の履歴</translation>
    </message>
</context>
<context>
    <name>aerolith::DetailStatusBar</name>
    <message>
        <source>Export network data</source>
        <translation>ネットワークのデータをエクスポート</translation>
    </message>
    <message>
        <source>Refresh network data</source>
        <translation>ネットワークのデータを更新</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>スキャン中</translation>
    </message>
    <message>
        <source>Last seen %1</source>
        <extracomment>%1 is a time before now, as in &quot;5 sec. ago&quot;.</extracomment>
        <translation>最終検出: %1</translation>
    </message>
</context>
<context>
    <name>aerolith::MainWindow</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Wi-Fi interface information</source>
        <translation>Wi-Fi インターフェースの情報</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>サイドバーを隠す</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>サイドバーを表示</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkDetailView</name>
    <message>
        <source>Network details</source>
        <translation>ネットワークの詳細</translation>
    </message>
    <message>
        <source>Signal Overview</source>
        <translation>信号の概要</translation>
    </message>
    <message>
        <source>Network Information</source>
        <translation>ネットワーク情報</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
</context>
<context>
    <name>aerolith::NetworkInfoDialog</name>
    <message>
        <source>Network Interface Information</source>
        <translation>ネットワークインターフェースの情報</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>ネットワーク設定を開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>aerolith::PasswordDialog</name>
    <message>
        <source>Connect to %1</source>
        <translation>%1 に接続</translation>
    </message>
    <message>
        <source>Enter the network password:</source>
        <translation>ネットワークのパスワードを入力してください:</translation>
    </message>
    <message>
        <source>Network password</source>
        <translation>ネットワークのパスワード</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続中</translation>
    </message>
</context>
<context>
    <name>aerolith::SettingsView</name>
    <message>
        <source>Start at login</source>
        <translation>ログイン時に起動する</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Scan Settings</source>
        <translation>スキャンの設定</translation>
    </message>
    <message>
        <source>Scan Interval</source>
        <translation>スキャンの間隔</translation>
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
        <translation>履歴の件数</translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <translation>
            <numerusform>%n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>All Networks</source>
        <translation>すべてのネットワーク</translation>
    </message>
    <message>
        <source>Hiding Hidden</source>
        <translation>非表示のものを除く</translation>
    </message>
    <message numerus="yes">
        <source>%n Networks</source>
        <translation>
            <numerusform>%n 件のネットワーク</numerusform>
        </translation>
    </message>
    <message>
        <source>Show Network</source>
        <translation>ネットワークを表示する</translation>
    </message>
    <message>
        <source>Hide Network</source>
        <translation>ネットワークを非表示にする</translation>
    </message>
</context>
<context>
    <name>aerolith::SidebarStatusBar</name>
    <message>
        <source>Export network list</source>
        <translation>ネットワーク一覧をエクスポート</translation>
    </message>
    <message>
        <source>Clear network list</source>
        <translation>ネットワーク一覧を消去</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Signal Strength</source>
        <translation>信号強度</translation>
    </message>
    <message>
        <source>Network Name</source>
        <translation>ネットワーク名</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Security Type</source>
        <translation>セキュリティの種類</translation>
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
        <translation>スキャン中</translation>
    </message>
    <message>
        <source>Networks</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Open App</source>
        <translation>アプリを開く</translation>
    </message>
</context>
<context>
    <name>aerolith::ToolsButton</name>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Wi-Fi Settings...</source>
        <translation>Wi-Fi 設定…</translation>
    </message>
    <message>
        <source>Wireless Diagnostics...</source>
        <translation>ワイヤレス診断…</translation>
    </message>
</context>
<context>
    <name>aerolith::UpdateDialog</name>
    <message>
        <source>Check once a day automatically</source>
        <translation>1 日 1 回自動的に確認する</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>更新内容</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード済み</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>確認中</translation>
    </message>
</context>
</TS>
