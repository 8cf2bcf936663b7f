<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6，发布于 2016-08-10</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel 版权所有，保留所有权利。</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>中文翻译：Quorvandel 制作团队。</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>大气折射</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>纬度（度）</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>经度（度）</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>气压单位</translation>
    </message>
    <message>
        <source>P(kPa)</source>
        <translation>P(kPa)</translation>
    </message>
    <message>
        <source>P(hPa)</source>
        <translation>P(hPa)</translation>
    </message>
    <message>
        <source>Air pressure</source>
        <translation>气压</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T(℃)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>气温（摄氏度）</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>启用大气折射修正</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>播放音乐</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvandel</source>
        <translation>Quorvandel</translation>
    </message>
    <message>
        <source>Region Selection</source>
        <translation>半球选择</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北半球</translation>
    </message>
    <message>
        <source>South</source>
        <translation>南半球</translation>
    </message>
    <message>
        <source>Quorvandel Setting</source>
        <translation>Quorvandel 设置</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>曝光(ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>曝光时间（毫秒）</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>USB 流量</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>USB 流量</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>确认北极星/σ Oct</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>模板匹配</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>将模板逆向旋转 1 度</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>模板角度（度）</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>将模板正向旋转 1 度</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>极轴粗调</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>轴心</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>每次都要选择同一颗星</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>星位 1 指示灯</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>星位 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>星位 2 指示灯</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>星位 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>星位 3 指示灯</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>星位 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>轴心：</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>北极星/σ Oct 当前位置</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>北极星/σ Oct 目标位置</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>极轴精调</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>天极：</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>天极标记</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>轴心标记</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>北极星/σ Oct 放大图</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>放大图</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>天极监测</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>参考星 A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>参考星 B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>开始监测</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>实时画面</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>星点模板</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>模板图</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>另存为...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>显示模板</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>单色样式</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>大气折射</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>手动跟踪</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>解冻</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>日本語</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>русский</source>
        <translation>русский</translation>
    </message>
    <message>
        <source>français</source>
        <translation>français</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Español</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>português</source>
        <translation>português</translation>
    </message>
    <message>
        <source>italiano</source>
        <translation>italiano</translation>
    </message>
    <message>
        <source>한국어</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>Quorvandel Manual</source>
        <translation>Quorvandel 使用手册</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>未找到 VELDIX Quorvandel 设备！</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>OpenVELDIX 出错，无法连接 Quorvandel！</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>InitVELDIX 出错，无法连接 Quorvandel！</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>此处似乎没有星点，请换一个位置。</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>无法求得轴心，请点击“重置”重新寻找。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>是否使用上次运行 Quorvandel 时记录的“轴心位置”？</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>请调整左侧的参数，让北极星周围显示出更多的星。</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>请调整左侧的参数，让 σ Oct 周围显示出更多的星。</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>设置好了吗？</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>设置完成</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>请双击北极星，然后用左侧的“旋转”滑块转动模板，使其与北极星周围的星点重合。</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>请双击 σ Oct，然后用左侧的“旋转”滑块转动模板，使其与 σ Oct 周围的星点重合。</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>匹配成功了吗？</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>匹配成功</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>请在图像中选择北极星以外的一颗星并双击它。请记住这颗星，后面的步骤还要再次选择它（第 1 步，共 3 步）。</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>请在图像中选择 σ Oct 以外的一颗星并双击它。请记住这颗星，后面的步骤还要再次选择它（第 1 步，共 3 步）。</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>请按画面上方箭头所示的方向转动赤道仪的赤经轴（RA），至少转动 30 度。</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>转动完了吗？</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>转动完成</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>请再次双击上一步所选的同一颗星（第 2 步，共 3 步）。</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>请再次沿同一方向转动赤道仪的赤经轴（RA），至少 30 度。</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>请最后一次双击前两步所选的同一颗星（第 3 步，共 3 步）。</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>请将赤经轴（RA）转回“零位（Home）”位置：在赤道仪转到停放（PARK）位置的过程中，确认所选的星始终位于圆圈上。</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>轴心正确吗？</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>正确</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>目标位置：请双击北极星，然后用左侧的“旋转”滑块转动模板，使其与北极星周围的星点重合。</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>目标位置：请双击 σ Oct，然后用左侧的“旋转”滑块转动模板，使其与 σ Oct 周围的星点重合。</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>请用高度和方位调节螺丝，将北极星移到图像上旋转着的小圆圈的中心。</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>请用高度和方位调节螺丝，将 σ Oct 移到图像上旋转着的小圆圈的中心。</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>调整好了吗？</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>调整完成</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>当前位置：请双击北极星，然后用左侧的“旋转”滑块转动模板，使其与北极星周围的星点重合。</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>当前位置：请双击 σ Oct，然后用左侧的“旋转”滑块转动模板，使其与 σ Oct 周围的星点重合。</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>请点击“开始监测”按钮。</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>请只用高度和方位调节螺丝，将天极方框移到轴心圆圈上。</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>相机库无法使用：请查看日志。</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>未连接相机。</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>已有 %1 秒没有图像。</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>设置文件中的缩放值无法显示图像。</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>尚无轴心：请先在三个赤经角度选取同一颗星。</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>未完成极轴校准就开始监测：请点击“重新开始”。</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>没有双击北极星/σ Oct。</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>模板没有放到北极星/σ Oct 上。</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>模板仍在原来的位置：请重新双击北极星/σ Oct。</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>此处没有星。</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>此处没有星（第 %1 次选星，共 3 次）。</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>A 星和 B 星已丢失。</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>A 星已丢失。</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>B 星已丢失。</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>模板不匹配：%2 个圆环中只有 %1 个有星。</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>两次选星之间，该星只移动了 %1 px。</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>两次选星之间，轴只转了 %1°。</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>跟踪旋钮仍在 %1°：请重置。</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>旋转的圆圈在放大镜下面。</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>设置不会保存：无法写入设置文件。</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>设置不会保存：Quorvandel.ini 不是文件。</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>设置不会保存：磁盘已满。</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>设置不会保存：无法写入所在文件夹。</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>天极跟踪</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>如果望远镜执行 GOTO 后丢失了天极，可在此处手动跟踪。</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>跟踪：</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>逆向转动 1 度</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>跟踪角度（度）</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>正向转动 1 度</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查找范围：</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹：</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>文件类型：</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>详细视图</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗？</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>转到上级文件夹</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新建一个文件夹</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>切换到列表视图</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>切换到详细视图</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>侧栏</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>位置和书签列表</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>显示</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>重命名(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>显示隐藏文件(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新建文件夹(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>确定要删除“%1”吗？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1”受写保护。
仍要删除吗？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>文件名无效</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;不能使用名称“%1”。&lt;/b&gt;&lt;p&gt;请换一个名称：字符更少，或不含标点符号。</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>滚动到此处</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左边缘</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右边缘</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>向左翻页</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>向上翻页</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>向右翻页</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>向下翻页</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>向右滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
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
    <name>QSidebar</name>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>复制链接地址(&amp;L)</translation>
    </message>
</context>
</TS>
