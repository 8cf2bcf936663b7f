<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Advice</name>
    <message>
        <source>Point the camera at the pole and press Connect.</source>
        <translation>请将相机对准天极，然后按“连接”。</translation>
    </message>
    <message>
        <source>No camera was found. Plug it in: the search goes on.</source>
        <translation>未找到相机。请插上相机，搜索会继续进行。</translation>
    </message>
    <message>
        <source>The camera library cannot be used: %1</source>
        <translation>无法使用相机库：%1</translation>
    </message>
    <message>
        <source>The camera %1 cannot be opened. It is tried again.</source>
        <translation>无法打开相机 %1。程序会继续尝试。</translation>
    </message>
    <message>
        <source>No picture for %1 s. Check the camera’s cable.</source>
        <translation>已有 %1 秒没有画面。请检查相机的连接线。</translation>
    </message>
    <message>
        <source>The camera has not answered for %1 s. Plug it in again.</source>
        <translation>相机已有 %1 秒没有响应。请重新插拔。</translation>
    </message>
    <message>
        <source>Looking for the stars at the pole …</source>
        <translation>正在寻找天极附近的恒星……</translation>
    </message>
    <message>
        <source>No light at all. Take the cover off the lens.</source>
        <translation>完全没有光。请取下镜头盖。</translation>
    </message>
    <message>
        <source>Too few stars (%1). Expose longer.</source>
        <translation>恒星太少（%1）。请延长曝光。</translation>
    </message>
    <message>
        <source>The picture is too bright. Expose shorter.</source>
        <translation>画面太亮。请缩短曝光。</translation>
    </message>
    <message>
        <source>This is not the night sky. Point the camera at the pole.</source>
        <translation>这不是夜空。请将相机对准天极。</translation>
    </message>
    <message>
        <source>The stars are %1 pixels wide. Focus the lens.</source>
        <translation>恒星宽 %1 像素。请调焦。</translation>
    </message>
    <message>
        <source>The stars are trailed. Let the mount come to rest.</source>
        <translation>恒星拖线了。请等赤道仪静止。</translation>
    </message>
    <message>
        <source>Too few stars: clouds? It goes on when they are back.</source>
        <translation>恒星太少：有云吗？恒星再现后会继续。</translation>
    </message>
    <message>
        <source>%1 stars, but not those at the pole. Point the mount at it.</source>
        <translation>有 %1 颗恒星，但不是天极附近的。请将赤道仪指向天极。</translation>
    </message>
    <message>
        <source>The pole is %1° outside the picture. Follow the arrow.</source>
        <translation>天极在画面外 %1°。请按箭头方向转动。</translation>
    </message>
    <message>
        <source>These stars are of the other hemisphere. Check the latitude.</source>
        <translation>这些是另一半球的恒星。请检查纬度。</translation>
    </message>
    <message>
        <source>The computer’s clock may be wrong. Check date and time.</source>
        <translation>电脑的时钟可能不准。请检查日期和时间。</translation>
    </message>
    <message>
        <source>The computer’s clock is behind. Set date and time.</source>
        <translation>电脑的时钟慢了。请设置日期和时间。</translation>
    </message>
    <message>
        <source>The clock was set by %1 s. Check date and time.</source>
        <translation>时钟被调整了 %1 秒。请检查日期和时间。</translation>
    </message>
    <message>
        <source>Turn the RA axis, either way.</source>
        <translation>请转动赤经轴，方向不限。</translation>
    </message>
    <message>
        <source>Turn the RA axis further: %1 so far.</source>
        <translation>请继续转动赤经轴：已转 %1。</translation>
    </message>
    <message>
        <source>Enough: the axis is known to %1. Now turn the bolts.</source>
        <translation>够了：转轴已知到 %1。现在请转动螺丝。</translation>
    </message>
    <message>
        <source>The mount was moved. Turn the RA axis once more.</source>
        <translation>赤道仪被移动了。请再转动一次赤经轴。</translation>
    </message>
    <message>
        <source>The camera slipped on the axis. Turn the RA axis once more.</source>
        <translation>相机在轴上滑动了。请再转动一次赤经轴。</translation>
    </message>
    <message>
        <source>Turn the bolts as the arrows say: %1 to go.</source>
        <translation>请按箭头转动螺丝：还差 %1。</translation>
    </message>
    <message>
        <source>Nearly there. Turn the bolts a little at a time.</source>
        <translation>快到了。请一点一点转动螺丝。</translation>
    </message>
    <message>
        <source>Aligned. Tighten the bolts and watch the number.</source>
        <translation>已校准。请拧紧螺丝并注意数字。</translation>
    </message>
    <message>
        <source>Enter the site to see which way each bolt must go.</source>
        <translation>请输入地点，即可看到每个螺丝的方向。</translation>
    </message>
    <message>
        <source>So near to the Earth’s pole, follow the arrow in the picture.</source>
        <translation>离地球极点这么近，请看画面中的箭头。</translation>
    </message>
    <message>
        <source>Recording stopped: the folder %1 cannot be written.</source>
        <translation>录制已停止：无法写入文件夹 %1。</translation>
    </message>
    <message>
        <source>The recording reached its limit and stopped.</source>
        <translation>录制达到上限，已停止。</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow is gone: %1 to go.</source>
        <translation>请转动螺丝直到箭头消失：还差 %1。</translation>
    </message>
    <message>
        <source>The camera library cannot be used.</source>
        <translation>无法使用相机库。</translation>
    </message>
    <message>
        <source>Each minute that it is off turns altitude and azimuth by 0.25° about the pole; the total error hardly changes.</source>
        <translation>时钟每差一分钟，高度和方位就绕天极转 0.25°；总误差几乎不变。</translation>
    </message>
</context>
<context>
    <name>Aim</name>
    <message>
        <source>pole as the air shows it</source>
        <translation>大气中看到的天极</translation>
    </message>
    <message>
        <source>true pole, no refraction</source>
        <translation>真天极，无大气折射</translation>
    </message>
    <message>
        <source>true pole, refraction at %1 hPa, %2 °C</source>
        <translation>真天极，大气折射按 %1 hPa、%2 °C</translation>
    </message>
    <message>
        <source>refracted pole, at %1 hPa, %2 °C</source>
        <translation>折射后的天极，%1 hPa、%2 °C</translation>
    </message>
</context>
<context>
    <name>AssistantWindow</name>
    <message>
        <source>Quorvandel Assistant</source>
        <extracomment>The window&apos;s title</extracomment>
        <translation>Quorvandel 助手</translation>
    </message>
</context>
<context>
    <name>Bolts</name>
    <message>
        <source>up</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>down</source>
        <translation>向下</translation>
    </message>
    <message>
        <source>east</source>
        <translation>向东</translation>
    </message>
    <message>
        <source>west</source>
        <translation>向西</translation>
    </message>
    <message>
        <source>good</source>
        <translation>好</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Stars recognised: %1 of %2</source>
        <translation>识别的恒星：%1 / %2</translation>
    </message>
    <message>
        <source>Width of the stars: %1 pixels</source>
        <translation>恒星宽度：%1 像素</translation>
    </message>
    <message>
        <source>Aimed at: %1</source>
        <extracomment>Before a text such as: true pole, no refraction</extracomment>
        <translation>对准：%1</translation>
    </message>
</context>
<context>
    <name>Figures</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>LargePage</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Disconnect</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Start again</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Total error</source>
        <translation>总误差</translation>
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
        <translation>输入地点</translation>
    </message>
    <message>
        <source>Turn the bolts until the arrow in the picture is gone. With the site, the assistant says which way each bolt must go.</source>
        <translation>请转动螺丝直到画面中的箭头消失。有了地点，助手会说明每个螺丝的方向。</translation>
    </message>
    <message>
        <source>The camera must see the pole; it need not be in the middle.</source>
        <translation>相机必须能看到天极，但不必在中央。</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Large view</source>
        <translation>大字显示</translation>
    </message>
    <message>
        <source>Live picture; a tap opens the large view</source>
        <translation>实时画面；点按可打开大字显示</translation>
    </message>
    <message>
        <source>%1 are enough, %2 if the axis is then known to %3. Further turning makes it more exact.</source>
        <translation>%1 就够了；若转轴已精确到 %3，%2 即可。继续转动会更精确。</translation>
    </message>
</context>
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
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1 an hour</source>
        <translation>每小时 %1</translation>
    </message>
    <message>
        <source>Error before</source>
        <translation>之前的误差</translation>
    </message>
    <message>
        <source>Error now</source>
        <translation>现在的误差</translation>
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
        <translation>用时</translation>
    </message>
    <message>
        <source>Polar alignment</source>
        <translation>极轴校准</translation>
    </message>
    <message>
        <source>Aimed at</source>
        <translation>对准</translation>
    </message>
    <message>
        <source>Drift in declination, anywhere, at most</source>
        <translation>赤纬漂移（各处），最大</translation>
    </message>
    <message>
        <source>Angle of field rotation at most, at the equator and at declination 60°</source>
        <translation>视场旋转角最大值，赤道处和赤纬 60° 处</translation>
    </message>
    <message>
        <source>Date and site</source>
        <translation>日期和地点</translation>
    </message>
    <message>
        <source>axis %1 above the pole</source>
        <translation>转轴比天极高 %1</translation>
    </message>
    <message>
        <source>axis %1 below the pole</source>
        <translation>转轴比天极低 %1</translation>
    </message>
    <message>
        <source>axis %1 east of the pole</source>
        <translation>转轴在天极以东 %1</translation>
    </message>
    <message>
        <source>axis %1 west of the pole</source>
        <translation>转轴在天极以西 %1</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>The folder cannot be made.</source>
        <translation>无法创建文件夹。</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>Not saved: %1 The report is still here.</source>
        <translation>未保存：%1 报告仍在这里。</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Save table</source>
        <translation>保存表格</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Pole</source>
        <translation>天极</translation>
    </message>
    <message>
        <source>Night and sound</source>
        <translation>夜间与声音</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>True pole</source>
        <translation>真天极</translation>
    </message>
    <message>
        <source>The Earth’s own axis: best for long exposures all over the sky.</source>
        <translation>地球自转轴：适合在全天进行长时间曝光。</translation>
    </message>
    <message>
        <source>Refracted pole</source>
        <translation>折射后的天极</translation>
    </message>
    <message>
        <source>Where the air shows the pole: best for long exposures near the pole.</source>
        <translation>大气中看到的天极：适合在天极附近进行长时间曝光。</translation>
    </message>
    <message>
        <source>Air pressure, hPa</source>
        <translation>气压（hPa）</translation>
    </message>
    <message>
        <source>Temperature, °C</source>
        <translation>温度（°C）</translation>
    </message>
    <message>
        <source>Red light only</source>
        <translation>仅红光</translation>
    </message>
    <message>
        <source>Keeps eyes used to the dark: the window emits no green and no blue.</source>
        <translation>保护暗适应的眼睛：窗口不发出绿光和蓝光。</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Pulses come faster as the error shrinks; a steady tone at the goal.</source>
        <translation>误差越小，脉冲声越快；达到目标时为连续音。</translation>
    </message>
    <message>
        <source>Speech</source>
        <translation>语音</translation>
    </message>
    <message>
        <source>Says which bolt to turn, and how far.</source>
        <translation>说出该转哪个螺丝、转多少。</translation>
    </message>
    <message>
        <source>Speech is not available on this computer.</source>
        <translation>此电脑没有语音功能。</translation>
    </message>
    <message>
        <source>Goal: aligned below</source>
        <translation>目标：小于此值即为校准</translation>
    </message>
    <message>
        <source>Record the frames</source>
        <translation>录制画面</translation>
    </message>
    <message>
        <source>Saves at most one frame a second as a FITS file, for a report of a fault.</source>
        <translation>每秒最多将一帧画面存为 FITS 文件，用于报告故障。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Limit of disk space, MB</source>
        <translation>磁盘空间上限（MB）</translation>
    </message>
    <message>
        <source>Air pressure, hPa (0: no refraction)</source>
        <translation>气压（hPa，0：无大气折射）</translation>
    </message>
</context>
<context>
    <name>SitePanel</name>
    <message>
        <source>With the site, the assistant says which way each bolt must go.</source>
        <translation>有了地点，助手会说明每个螺丝的方向。</translation>
    </message>
    <message>
        <source>Latitude: north positive, or N, S</source>
        <translation>纬度：北为正，或 N、S</translation>
    </message>
    <message>
        <source>Longitude: east positive, or E, W</source>
        <translation>经度：东为正，或 E、W</translation>
    </message>
</context>
<context>
    <name>SkyPicture</name>
    <message>
        <source>Do not show this again until the next start</source>
        <translation>下次启动前不再显示</translation>
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
        <translation>已校准</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>A direction and a size, such as &quot;up, 2 minutes&quot;</extracomment>
        <translation>%1，%2</translation>
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
        <translation>转轴</translation>
    </message>
    <message>
        <source>Bolts</source>
        <translation>螺丝</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
</context>
</TS>
