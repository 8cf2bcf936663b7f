<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>カメラを極に向けて「接続」を押してください。</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>カメラが見つかりません。つないでください。検索は続いています。</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>カメラのライブラリを使えません：%1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>カメラ %1 を開けません。再試行を続けています。</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>%1 秒間、画像が来ません。カメラのケーブルを確かめてください。</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>カメラが %1 秒間応答しません。つなぎ直してください。</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>極の周りの星を探しています…</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>光がまったくありません。レンズの蓋を外してください。</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>星が少なすぎます（%1）。露出を長くしてください。</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>画像が明るすぎます。露出を短くしてください。</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>夜空ではありません。カメラを極に向けてください。</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>星の幅が %1 ピクセルあります。ピントを合わせてください。</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>星が流れています。赤道儀が落ち着くまで待ってください。</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>星が少なすぎます。雲でしょうか。星が戻れば続けます。</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>星は %1 個ありますが、極の星ではありません。赤道儀を極に向けてください。</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>極は画像の %1° 外です。矢印の向きへ動かしてください。</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>これは反対の半球の星です。緯度を確かめてください。</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>コンピューターの時計が合っていないかもしれません。日時を確かめてください。</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>コンピューターの時計が遅れています。日時を合わせてください。</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>時計が %1 秒変更されました。日時を確かめてください。</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>赤経軸を回してください。向きはどちらでも構いません。</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>赤経軸をさらに回してください。ここまで %1。</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>十分です。軸は %1 まで分かりました。次はネジを回してください。</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>赤道儀が動きました。赤経軸をもう一度回してください。</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>カメラが軸の上でずれました。赤経軸をもう一度回してください。</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>矢印の向きにネジを回してください。残り %1。</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>あと少しです。ネジを少しずつ回してください。</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>合いました。数値を見ながらネジを締めてください。</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>観測地を入力すると、各ネジの向きが分かります。</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>地球の極がこれほど近いので、画像の矢印に従ってください。</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>記録を止めました：フォルダー %1 に書き込めません。</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>記録が上限に達したので止めました。</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>矢印が消えるまでネジを回してください。残り %1。</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>カメラのライブラリを使えません。</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>時計が 1 分ずれるごとに、高度と方位は極のまわりに 0.25° 回ります。全体のずれはほとんど変わりません。</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>大気を通して見える極</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>真の極、大気差なし</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>真の極、大気差は %1 hPa、%2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>大気差を含む極、%1 hPa、%2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Quorvandel アシスタント</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>east</source>
        <translation>東</translation>
    </message>
    <message>
        <source>west</source>
        <translation>西</translation>
    </message>
    <message>
        <source>good</source>
        <translation>良好</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>認識した星：%1／%2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>星の幅：%1 ピクセル</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>目標：%1</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>LargePage</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露出</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>全体のずれ</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>方位</translation>
    </message>
    <message>
        <source>Enter the site</source>
        <translation>観測地を入力</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>画像の矢印が消えるまでネジを回してください。観測地が分かれば、各ネジの向きを示します。</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>カメラに極が写れば、中央でなくても構いません。</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>大きな表示</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>ライブ画像。タップすると大きな表示になります</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>%1、または軸が %3 まで分かれば %2 で十分です。さらに回すと、より正確になります。</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>すべて選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>増やす(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>減らす(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>アクセス権がありません</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>そのようなファイルやフォルダーはありません</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>デバイスに空き領域がありません</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>1 時間に %1</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>前のずれ</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>今のずれ</translation>
    </message>
    <message>
        <source>in altitude</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>in azimuth</source>
        <translation>方位</translation>
    </message>
    <message>
        <source>Time taken</source>
        <translation>かかった時間</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>極軸合わせ</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>赤緯のドリフト（どこでも）、最大</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>視野の回転角、最大（赤道と赤緯 60°）</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>日時と観測地</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>軸は極より %1 上</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>軸は極より %1 下</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>軸は極より %1 東</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>軸は極より %1 西</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>フォルダーを作れません。</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存しました：%1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>保存できません：%1 レポートはここに残っています。</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>表を保存</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>観測地</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>極</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>夜間と音</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>記録</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>真の極</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>地球の自転軸。全天の長時間露出に最適です。</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>大気差を含む極</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>大気を通して見える極。極付近の長時間露出に最適です。</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>気圧（hPa）</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>気温（°C）</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>赤い光だけ</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>暗さに慣れた目を守ります。緑と青の光は出しません。</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>ずれが小さいほど音が速くなり、目標では連続音になります。</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>どのネジをどれだけ回すかを話します。</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>このコンピューターでは音声を使えません。</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>目標：これ未満で完了</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>画像を記録</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>不具合の報告用に、画像を最大で毎秒 1 枚、FITS ファイルで保存します。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>ディスク容量の上限（MB）</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>気圧（hPa、0：大気差なし）</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>観測地が分かれば、各ネジの向きを示します。</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>緯度（北が正、または N、S）</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>経度（東が正、または E、W）</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>次に起動するまで表示しない</translation>
    </message>
</context>
<context>
    <name>Speech</name>
    <message>
        <source>1 degree</source>
        <translation>1 度</translation>
    </message>
    <message numerus="yes">
        <source>%n degrees</source>
        <translation>
            <numerusform>%n 度</numerusform>
        </translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 分</translation>
    </message>
    <message numerus="yes">
        <source>%n minutes</source>
        <translation>
            <numerusform>%n 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>aligned</source>
        <translation>合いました</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A direction and a size, such as &quot;up, 2 minutes&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
</context>
<context>
    <name>Stage</name>
    <message>
        <source>Sky</source>
        <translation>星空</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>軸</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>ネジ</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
</context>
</TS>
