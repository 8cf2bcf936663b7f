<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
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
    <message>
        <source>Up</source>
        <translation>上矢印</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下矢印</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左矢印</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右矢印</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>別のプログラムがロックしています</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>64 KiB を超えています</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>最後の行が終わっていません（ファイルが書きかけです）</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>セクション名の ] がありません</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>不明なセクション [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>「キー = 値」の形ではありません</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>最初のセクションより前にあります</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>[%1] に不明なキーがあります</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>2 回書かれています</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>%1 ～ %2 の範囲外です</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>%1 か %2 でなければなりません</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>%1、%2、%3 のどれかでなければなりません</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>そのような操作はありません:「%1」</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>%1 か、%4 のような %2 ～ %3 年の日付でなければなりません</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>整数でなければなりません</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>数値でなければなりません</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>1 か 3 でなければなりません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>上に %1</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>下に %1</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>東に %1</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>西に %1</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>上へ %1</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>下へ %1</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>東へ %1</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>西へ %1</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>赤経軸（RA）</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>赤経軸の角度（度）</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>赤経軸を回します。時計回りが赤道儀の追尾の向きです</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>角度(&amp;A):</translation>
    </message>
    <message>
        <source>+%1°</source>
        <translation>+%1°</translation>
    </message>
    <message>
        <source>−%1°</source>
        <translation>−%1°</translation>
    </message>
    <message>
        <source>Turn the RA axis by %1 degrees</source>
        <translation>赤経軸を %1° 回す</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>ホーム(&amp;H)</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>赤経軸を 0 に戻す</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>追尾(&amp;K)</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>赤経軸が日周運動を追います</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ 下</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>高度ネジ: 下へ 4 分の 1 回転</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>微動 ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>高度ネジ: 下へ微動</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ 微動</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>高度ネジ: 上へ微動</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>上 ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>高度ネジ: 上へ 4 分の 1 回転</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ 西</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>方位ネジ: 西へ 4 分の 1 回転</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>微動 ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>方位ネジ: 西へ微動</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ 微動</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>方位ネジ: 東へ微動</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>東 ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>方位ネジ: 東へ 4 分の 1 回転</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>高度ネジの回転数</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>方位ネジの回転数</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>残りの誤差を表示または隠す</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>リセット(&amp;R)</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>すべてを最初の状態に戻す</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>すべてを最初の状態に戻します</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>残りの誤差</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>置換(&amp;I)</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>誤りのある天空ファイルを新しいものに置き換える</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel 仮想赤道儀</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>正解を隠す(&amp;T)</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>正解を見る(&amp;T)</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>残りの誤差は非表示です。</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>赤経軸は極から %1 ずれています:
%2、%3。</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>天空ファイルに書き込めません: %1。</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>天空ファイルの誤り: %1。何も書き込みません。</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>矢印キーでネジを回します（Shift で微動）。
Ctrl+1 ～ Ctrl+6 で軸を回し、Esc で入力欄を離れます。</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>どの時刻にするか</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>ここから</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>ここで停止</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>日付と時刻（UTC）</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>観測地と時刻（UTC）</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>緯度(&amp;L)</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北緯</translation>
    </message>
    <message>
        <source>South</source>
        <translation>南緯</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>緯度（度）</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>緯度: 北緯または南緯</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>経度(&amp;O)</translation>
    </message>
    <message>
        <source>East</source>
        <translation>東経</translation>
    </message>
    <message>
        <source>West</source>
        <translation>西経</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>経度（度）</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>経度: 東経または西経</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>日時(&amp;D)</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天気</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>雲量(&amp;C)</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>雲量（％）</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>月明かり(&amp;M)</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>月明かり（％）</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>シーイング(&amp;S)</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>シーイング（秒角）</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>流れる雲(&amp;P)</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>雲が出たり消えたりします</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>大気差(&amp;F)</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>ケーブルを抜く(&amp;U)</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>USB を遅くする(&amp;W)</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>高度・方位の調整ネジ: 回転数</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>新しい練習(&amp;N)</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>ネジとカメラの向きを無作為に変え、そこから練習し直します</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>星の角度データの誤差</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>星の角度データ（%1年）の古さの分：%2</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>赤道儀の極軸はすでに合っています。
「新しい練習」で極からずらせます。</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>西 ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ 東</translation>
    </message>
</context>
</TS>
