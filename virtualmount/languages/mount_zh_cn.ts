<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>全选(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>增大(&amp;S)</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>减小(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QIODevice</name>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件太多</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有这个文件或文件夹</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
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
        <translation>上方向键</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下方向键</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左方向键</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右方向键</translation>
    </message>
</context>
<context>
    <name>SkyDocument</name>
    <message>
        <source>another program holds it locked</source>
        <translation>另一个程序锁定了它</translation>
    </message>
</context>
<context>
    <name>SkyFault</name>
    <message>
        <source>not an ordinary file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>longer than 64 KiB</source>
        <translation>超过 64 KiB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件是空的</translation>
    </message>
    <message>
        <source>the last line has no end: the file is half-written</source>
        <translation>最后一行没有结束，文件只写了一半</translation>
    </message>
    <message>
        <source>the section&apos;s ] is missing</source>
        <translation>节名缺少 ]</translation>
    </message>
    <message>
        <source>unknown section [%1]</source>
        <translation>未知的节 [%1]</translation>
    </message>
    <message>
        <source>not of the form key = value</source>
        <translation>不是“键 = 值”的形式</translation>
    </message>
    <message>
        <source>appears before any section</source>
        <translation>出现在第一个节之前</translation>
    </message>
    <message>
        <source>unknown key in [%1]</source>
        <translation>[%1] 中未知的键</translation>
    </message>
    <message>
        <source>duplicate key</source>
        <translation>出现了两次</translation>
    </message>
    <message>
        <source>must lie between %1 and %2</source>
        <translation>必须在 %1 和 %2 之间</translation>
    </message>
    <message>
        <source>must be %1 or %2</source>
        <translation>必须是 %1 或 %2</translation>
    </message>
    <message>
        <source>must be %1, %2 or %3</source>
        <translation>必须是 %1、%2 或 %3</translation>
    </message>
    <message>
        <source>unknown operation: &quot;%1&quot;</source>
        <translation>没有这个操作：“%1”</translation>
    </message>
    <message>
        <source>must be %1 or a date from %2 to %3 like %4</source>
        <translation>必须是 %1，或 %2 至 %3 年的日期，如 %4</translation>
    </message>
    <message>
        <source>must be a whole number</source>
        <translation>必须是整数</translation>
    </message>
    <message>
        <source>must be a number</source>
        <translation>必须是数字</translation>
    </message>
    <message>
        <source>must be 1 or 3</source>
        <translation>必须是 1 或 3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
</context>
<context>
    <name>virtualmount</name>
    <message>
        <source>%1 too high</source>
        <translation>偏高 %1</translation>
    </message>
    <message>
        <source>%1 too low</source>
        <translation>偏低 %1</translation>
    </message>
    <message>
        <source>%1 too far east</source>
        <translation>偏东 %1</translation>
    </message>
    <message>
        <source>%1 too far west</source>
        <translation>偏西 %1</translation>
    </message>
    <message>
        <source>%1 up</source>
        <translation>向上 %1</translation>
    </message>
    <message>
        <source>%1 down</source>
        <translation>向下 %1</translation>
    </message>
    <message>
        <source>%1 east</source>
        <translation>向东 %1</translation>
    </message>
    <message>
        <source>%1 west</source>
        <translation>向西 %1</translation>
    </message>
</context>
<context>
    <name>virtualmount::MountWindow</name>
    <message>
        <source>RA axis</source>
        <translation>赤经轴（RA）</translation>
    </message>
    <message>
        <source>Angle of the RA axis in degrees</source>
        <translation>赤经轴角度（度）</translation>
    </message>
    <message>
        <source>Turns the RA axis; clockwise as the mount tracks</source>
        <translation>转动赤经轴；顺时针为赤道仪跟踪的方向</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>角度(&amp;A)：</translation>
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
        <translation>将赤经轴转动 %1 度</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>零位(&amp;H)</translation>
    </message>
    <message>
        <source>Turn the RA axis back to 0</source>
        <translation>将赤经轴转回 0</translation>
    </message>
    <message>
        <source>Trac&amp;king</source>
        <translation>跟踪(&amp;K)</translation>
    </message>
    <message>
        <source>The RA axis follows the sky</source>
        <translation>赤经轴跟随天空转动</translation>
    </message>
    <message>
        <source>▼ Down</source>
        <translation>▼ 向下</translation>
    </message>
    <message>
        <source>Altitude bolt: down, a quarter of a turn</source>
        <translation>高度螺丝：向下四分之一圈</translation>
    </message>
    <message>
        <source>fine ▼</source>
        <translation>微调 ▼</translation>
    </message>
    <message>
        <source>Altitude bolt: down, finely</source>
        <translation>高度螺丝：向下微调</translation>
    </message>
    <message>
        <source>▲ fine</source>
        <translation>▲ 微调</translation>
    </message>
    <message>
        <source>Altitude bolt: up, finely</source>
        <translation>高度螺丝：向上微调</translation>
    </message>
    <message>
        <source>Up ▲</source>
        <translation>向上 ▲</translation>
    </message>
    <message>
        <source>Altitude bolt: up, a quarter of a turn</source>
        <translation>高度螺丝：向上四分之一圈</translation>
    </message>
    <message>
        <source>◀ West</source>
        <translation>◀ 向西</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, a quarter of a turn</source>
        <translation>方位螺丝：向西四分之一圈</translation>
    </message>
    <message>
        <source>fine ◀</source>
        <translation>微调 ◀</translation>
    </message>
    <message>
        <source>Azimuth bolt: west, finely</source>
        <translation>方位螺丝：向西微调</translation>
    </message>
    <message>
        <source>▶ fine</source>
        <translation>▶ 微调</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, finely</source>
        <translation>方位螺丝：向东微调</translation>
    </message>
    <message>
        <source>East ▶</source>
        <translation>向东 ▶</translation>
    </message>
    <message>
        <source>Azimuth bolt: east, a quarter of a turn</source>
        <translation>方位螺丝：向东四分之一圈</translation>
    </message>
    <message>
        <source>Turns of the altitude knob</source>
        <translation>高度螺丝转过的圈数</translation>
    </message>
    <message>
        <source>Turns of the azimuth knob</source>
        <translation>方位螺丝转过的圈数</translation>
    </message>
    <message>
        <source>Show or hide the remaining error</source>
        <translation>显示或隐藏剩余误差</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>Reset to the values at the start</source>
        <translation>将一切恢复到最初的状态</translation>
    </message>
    <message>
        <source>Resets everything to the values at the start</source>
        <translation>将一切恢复到最初的状态</translation>
    </message>
    <message>
        <source>Remaining error</source>
        <translation>剩余误差</translation>
    </message>
    <message>
        <source>Replace &amp;it</source>
        <translation>替换(&amp;I)</translation>
    </message>
    <message>
        <source>Write a new sky file over the one with the fault</source>
        <translation>用新的天空文件替换有错误的文件</translation>
    </message>
    <message>
        <source>Quorvandel Virtual Mount</source>
        <translation>Quorvandel 虚拟赤道仪</translation>
    </message>
    <message>
        <source>Hide the tru&amp;th</source>
        <translation>隐藏真值(&amp;T)</translation>
    </message>
    <message>
        <source>Show me the tru&amp;th</source>
        <translation>显示真值(&amp;T)</translation>
    </message>
    <message>
        <source>What is left of the error is hidden.</source>
        <translation>剩余误差已隐藏。</translation>
    </message>
    <message>
        <source>The RA axis misses the pole by %1:
%2 and %3.</source>
        <translation>赤经轴偏离天极 %1：
%2，%3。</translation>
    </message>
    <message>
        <source>The sky file cannot be written: %1.</source>
        <translation>无法写入天空文件：%1。</translation>
    </message>
    <message>
        <source>Fault in the sky file: %1. Nothing is written.</source>
        <translation>天空文件有错误：%1。不会写入任何内容。</translation>
    </message>
    <message>
        <source>Arrow keys turn the bolts, with Shift finely.
Ctrl+1 to Ctrl+6 turn the axis, Esc leaves a field.</source>
        <translation>方向键转动螺丝，按住 Shift 微调。
Ctrl+1 至 Ctrl+6 转动赤经轴，Esc 离开输入框。</translation>
    </message>
    <message>
        <source>Which time it is</source>
        <translation>采用的时间</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>Runs from</source>
        <translation>从此时起</translation>
    </message>
    <message>
        <source>Fixed at</source>
        <translation>停在此时</translation>
    </message>
    <message>
        <source>Date and time, UTC</source>
        <translation>日期和时间（UTC）</translation>
    </message>
    <message>
        <source>Site and time (UTC)</source>
        <translation>地点和时间（UTC）</translation>
    </message>
    <message>
        <source>&amp;Latitude</source>
        <translation>纬度(&amp;L)</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北纬</translation>
    </message>
    <message>
        <source>South</source>
        <translation>南纬</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>纬度（度）</translation>
    </message>
    <message>
        <source>Latitude: north or south</source>
        <translation>纬度：北纬或南纬</translation>
    </message>
    <message>
        <source>L&amp;ongitude</source>
        <translation>经度(&amp;O)</translation>
    </message>
    <message>
        <source>East</source>
        <translation>东经</translation>
    </message>
    <message>
        <source>West</source>
        <translation>西经</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>经度（度）</translation>
    </message>
    <message>
        <source>Longitude: east or west</source>
        <translation>经度：东经或西经</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>日期(&amp;D)</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>天气</translation>
    </message>
    <message>
        <source>&amp;Clouds</source>
        <translation>云量(&amp;C)</translation>
    </message>
    <message>
        <source>Clouds in percent</source>
        <translation>云量（百分比）</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>月光(&amp;M)</translation>
    </message>
    <message>
        <source>Glow of the moon in percent</source>
        <translation>月光（百分比）</translation>
    </message>
    <message>
        <source>&amp;Seeing</source>
        <translation>视宁度(&amp;S)</translation>
    </message>
    <message>
        <source>Seeing in seconds of arc</source>
        <translation>视宁度（角秒）</translation>
    </message>
    <message>
        <source>%1″</source>
        <translation>%1″</translation>
    </message>
    <message>
        <source>&amp;Passing</source>
        <translation>云飘过(&amp;P)</translation>
    </message>
    <message>
        <source>Clouds come and go</source>
        <translation>云来云去</translation>
    </message>
    <message>
        <source>Re&amp;fraction</source>
        <translation>大气折射(&amp;F)</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>&amp;Unplugged</source>
        <translation>拔掉数据线(&amp;U)</translation>
    </message>
    <message>
        <source>Slo&amp;w USB</source>
        <translation>USB 变慢(&amp;W)</translation>
    </message>
    <message>
        <source>Altitude and azimuth bolts: turns</source>
        <translation>高度和方位调节螺丝：圈数</translation>
    </message>
    <message>
        <source>&amp;New exercise</source>
        <translation>新练习(&amp;N)</translation>
    </message>
    <message>
        <source>Turns the bolts and the camera at random, to start again from there</source>
        <translation>随机转动螺丝和相机，从那里重新开始</translation>
    </message>
    <message>
        <source>Error of the star angles</source>
        <translation>星点角度数据的误差</translation>
    </message>
    <message>
        <source>The age of the star angles (%1) alone makes %2.</source>
        <translation>仅星点角度数据（%1 年）过时就造成 %2 的误差。</translation>
    </message>
    <message>
        <source>The mount is already aligned.
“New exercise” moves it away from the pole.</source>
        <translation>赤道仪已经对准天极。
“新练习”会让它偏离天极。</translation>
    </message>
    <message>
        <source>West ▶</source>
        <translation>向西 ▶</translation>
    </message>
    <message>
        <source>◀ East</source>
        <translation>◀ 向东</translation>
    </message>
</context>
</TS>
