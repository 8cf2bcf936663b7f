<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Quorvandel について</translation>
    </message>
    <message>
        <source>Quorvandel V1.3.2.6, release 2016-08-10</source>
        <translation>Quorvandel V1.3.2.6、2016-08-10 リリース</translation>
    </message>
    <message>
        <source>© 2021 Quorvandel. All rights reserved.</source>
        <translation>© 2021 Quorvandel. 無断転載を禁じます。</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Web サイト</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>English translation by the makers of Quorvandel.</source>
        <translation>日本語訳：Quorvandel 開発チーム</translation>
    </message>
</context>
<context>
    <name>AstroRefractionDialog</name>
    <message>
        <source>Astronomical Refraction</source>
        <translation>大気差</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>Latitude in degrees</source>
        <translation>緯度（度）</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>Longitude in degrees</source>
        <translation>経度（度）</translation>
    </message>
    <message>
        <source>Unit of pressure</source>
        <translation>気圧の単位</translation>
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
        <translation>気圧</translation>
    </message>
    <message>
        <source>T(℃)</source>
        <translation>T(℃)</translation>
    </message>
    <message>
        <source>Air temperature in degrees Celsius</source>
        <translation>気温（℃）</translation>
    </message>
    <message>
        <source>Enable Astronomical Refraction Correction</source>
        <translation>大気差補正を有効にする</translation>
    </message>
</context>
<context>
    <name>FavoriteDialog</name>
    <message>
        <source>Favorite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Play Music</source>
        <translation>音楽を再生</translation>
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
        <translation>半球の選択</translation>
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
        <translation>Quorvandel の設定</translation>
    </message>
    <message>
        <source>Exp(ms)</source>
        <translation>露出(ms)</translation>
    </message>
    <message>
        <source>Exposure in milliseconds</source>
        <translation>露出時間（ミリ秒）</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>ゲイン</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>USB転送</translation>
    </message>
    <message>
        <source>USB traffic</source>
        <translation>USB 転送量</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Confirm Polaris/σ Oct</source>
        <translation>北極星/σ Oct の確認</translation>
    </message>
    <message>
        <source>Matching Template</source>
        <translation>テンプレート照合</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Turn the template back by one degree</source>
        <translation>テンプレートを 1° 戻す</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Template angle in degrees</source>
        <translation>テンプレートの角度（度）</translation>
    </message>
    <message>
        <source>Turn the template on by one degree</source>
        <translation>テンプレートを 1° 進める</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Rough Pole</source>
        <translation>極軸の粗調整</translation>
    </message>
    <message>
        <source>Axis Center</source>
        <translation>回転中心</translation>
    </message>
    <message>
        <source>Chose the same star every times</source>
        <translation>毎回同じ星を選んでください</translation>
    </message>
    <message>
        <source>Lamp of star position 1</source>
        <translation>星の位置 1 のランプ</translation>
    </message>
    <message>
        <source>Star Pos 1</source>
        <translation>星の位置 1</translation>
    </message>
    <message>
        <source>Lamp of star position 2</source>
        <translation>星の位置 2 のランプ</translation>
    </message>
    <message>
        <source>Star Pos 2</source>
        <translation>星の位置 2</translation>
    </message>
    <message>
        <source>Lamp of star position 3</source>
        <translation>星の位置 3 のランプ</translation>
    </message>
    <message>
        <source>Star Pos 3</source>
        <translation>星の位置 3</translation>
    </message>
    <message>
        <source>Axis:</source>
        <translation>軸:</translation>
    </message>
    <message>
        <source>(0,0)</source>
        <translation>(0,0)</translation>
    </message>
    <message>
        <source>Current Polaris/σ Oct</source>
        <translation>北極星/σ Oct の現在位置</translation>
    </message>
    <message>
        <source>Expected Polaris/σ Oct</source>
        <translation>北極星/σ Oct の目標位置</translation>
    </message>
    <message>
        <source>Precise Pole</source>
        <translation>極軸の微調整</translation>
    </message>
    <message>
        <source>Pole:</source>
        <translation>極:</translation>
    </message>
    <message>
        <source>Mark of the pole</source>
        <translation>極のマーク</translation>
    </message>
    <message>
        <source>Mark of the axis</source>
        <translation>軸のマーク</translation>
    </message>
    <message>
        <source>Enlarged picture of the pole star</source>
        <translation>極星の拡大画像</translation>
    </message>
    <message>
        <source>roiBigger_image</source>
        <translation>拡大画像</translation>
    </message>
    <message>
        <source>Monitor Pole</source>
        <translation>極のモニタリング</translation>
    </message>
    <message>
        <source>Reference Star A</source>
        <translation>基準星 A</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>位置:</translation>
    </message>
    <message>
        <source>Reference Star B</source>
        <translation>基準星 B</translation>
    </message>
    <message>
        <source>Start Monitor</source>
        <translation>監視開始</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>ライブ画像</translation>
    </message>
    <message>
        <source>Star template</source>
        <translation>星のテンプレート</translation>
    </message>
    <message>
        <source>template_image</source>
        <translation>テンプレート画像</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Display Template</source>
        <translation>テンプレートを表示</translation>
    </message>
    <message>
        <source>Mono Style</source>
        <translation>モノクロ表示</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>ストレッチ</translation>
    </message>
    <message>
        <source>Astronomical Refraction</source>
        <translation>大気差</translation>
    </message>
    <message>
        <source>Manual Trace</source>
        <translation>手動追跡</translation>
    </message>
    <message>
        <source>Unfreeze</source>
        <translation>凍結解除</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>お気に入り</translation>
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
        <translation>Quorvandel マニュアル</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Quorvandel について</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Not Found VELDIX Quorvandel equipment!</source>
        <translation>VELDIX Quorvandel 機器が見つかりません。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as OpenVELDIX error!</source>
        <translation>OpenVELDIX のエラーのため、Quorvandel に接続できません。</translation>
    </message>
    <message>
        <source>Can not connect Quorvandel as InitVELDIX error!</source>
        <translation>InitVELDIX のエラーのため、Quorvandel に接続できません。</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Seems no star in this point, please try other point.</source>
        <translation>この位置には星がないようです。別の位置を試してください。</translation>
    </message>
    <message>
        <source>Can not get the Axis center, please click &apos;reset&apos; to re-find it.</source>
        <translation>回転中心を求められません。「リセット」をクリックしてやり直してください。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Would you like to use the &apos;Axis center position&apos; recorded last time you used Quorvandel ?</source>
        <translation>前回 Quorvandel を使用したときに記録された「回転中心の位置」を使用しますか？</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around Polaris visable.</source>
        <translation>左のパラメータを調整して、北極星の周囲の星がより多く見えるようにしてください。</translation>
    </message>
    <message>
        <source>Set the parameters to the left to make more stars around σ Oct visable.</source>
        <translation>左のパラメータを調整して、σ Oct の周囲の星がより多く見えるようにしてください。</translation>
    </message>
    <message>
        <source>Has setting up finished?</source>
        <translation>設定は終わりましたか？</translation>
    </message>
    <message>
        <source>Setting Finished</source>
        <translation>設定完了</translation>
    </message>
    <message>
        <source>Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>北極星をダブルクリックし、左の「回転」スライダーでテンプレートを回して北極星の周囲の星に重ねてください。</translation>
    </message>
    <message>
        <source>Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>σ Oct をダブルクリックし、左の「回転」スライダーでテンプレートを回して σ Oct の周囲の星に重ねてください。</translation>
    </message>
    <message>
        <source>Does match success?</source>
        <translation>重なりましたか？</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>照合成功</translation>
    </message>
    <message>
        <source>Choose a star other than Polaris and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>北極星以外の星を 1 つ選び、画像上でダブルクリックしてください。この後のステップでも選びますので、その星を覚えておいてください（ステップ 1/3）。</translation>
    </message>
    <message>
        <source>Choose a star other than σ Oct and Double click it in the image. Remember this star, you will be selecting it again in the following steps (Step 1 of 3).</source>
        <translation>σ Oct 以外の星を 1 つ選び、画像上でダブルクリックしてください。この後のステップでも選びますので、その星を覚えておいてください（ステップ 1/3）。</translation>
    </message>
    <message>
        <source>Rotate your mounts &apos;RA&apos; axis in the direction indicated by the arrow now at the top of the screen (rotate a minimum of 30 degree&apos;s).</source>
        <translation>画面上部の矢印が示す方向に、赤道儀の赤経軸（RA）を回してください（30 度以上）。</translation>
    </message>
    <message>
        <source>Has rotation finished?</source>
        <translation>回転は終わりましたか？</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>rotation Finished</source>
        <translation>回転完了</translation>
    </message>
    <message>
        <source>Double click the same star again chosen in the previous step (Step 2 of 3).</source>
        <translation>前のステップで選んだ星をもう一度ダブルクリックしてください（ステップ 2/3）。</translation>
    </message>
    <message>
        <source>Again, Rotate your mounts &apos;RA&apos; axis in the same direction at least 30 degrees.</source>
        <translation>赤道儀の赤経軸（RA）を、もう一度同じ方向に 30 度以上回してください。</translation>
    </message>
    <message>
        <source>Double click the same star one last time chosen in the previous 2 steps (Step 3 of 3).</source>
        <translation>前の 2 つのステップで選んだ星を、最後にもう一度ダブルクリックしてください（ステップ 3/3）。</translation>
    </message>
    <message>
        <source>Return the &apos;RA&apos; axis to the &apos;Home&apos; position - Ensure your chosen star stays on the circle while your mount rotates to the PARK position.</source>
        <translation>赤経軸（RA）をホームポジションに戻してください。赤道儀がパークポジションまで回る間、選んだ星が円の上から外れないことを確認してください。</translation>
    </message>
    <message>
        <source>Is the axis center correct?</source>
        <translation>回転中心は正しいですか？</translation>
    </message>
    <message>
        <source>Correct</source>
        <translation>正しい</translation>
    </message>
    <message>
        <source>Expected position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>目標位置：北極星をダブルクリックし、左の「回転」スライダーでテンプレートを回して北極星の周囲の星に重ねてください。</translation>
    </message>
    <message>
        <source>Expected position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>目標位置：σ Oct をダブルクリックし、左の「回転」スライダーでテンプレートを回して σ Oct の周囲の星に重ねてください。</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move Polaris into the center of the small Rotating circle now shown on the image.</source>
        <translation>高度・方位の調整ネジを使って、画像上で回転している小さな円の中心に北極星を入れてください。</translation>
    </message>
    <message>
        <source>Using your Altitude and Azimuth bolts, move σ Oct into the center of the small Rotating circle now shown on the image.</source>
        <translation>高度・方位の調整ネジを使って、画像上で回転している小さな円の中心に σ Oct を入れてください。</translation>
    </message>
    <message>
        <source>Has adjustment finished?</source>
        <translation>調整は終わりましたか？</translation>
    </message>
    <message>
        <source>adjustment Finished</source>
        <translation>調整完了</translation>
    </message>
    <message>
        <source>Current position: Double Click Polaris and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around Polaris.</source>
        <translation>現在位置：北極星をダブルクリックし、左の「回転」スライダーでテンプレートを回して北極星の周囲の星に重ねてください。</translation>
    </message>
    <message>
        <source>Current position: Double Click σ Oct and use the &apos;Rotate&apos; slider on the left to rotate the Template to match up to the stars around σ Oct.</source>
        <translation>現在位置：σ Oct をダブルクリックし、左の「回転」スライダーでテンプレートを回して σ Oct の周囲の星に重ねてください。</translation>
    </message>
    <message>
        <source>Please click the &apos;Start Monitor&apos; button.</source>
        <translation>「監視開始」ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>Use your Altitude and Azimuth bolts only to move the Pole rectangle on top of the Axis circle.</source>
        <translation>高度・方位の調整ネジだけを使って、極の四角形を軸の円に重ねてください。</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>最初から</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>The camera library cannot be used: see the log.</source>
        <translation>カメラライブラリを使用できません：ログを参照してください。</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>カメラが接続されていません。</translation>
    </message>
    <message>
        <source>No picture for %1 s.</source>
        <translation>%1 秒間、画像が届いていません。</translation>
    </message>
    <message>
        <source>The zoom in the settings file shows no picture.</source>
        <translation>設定ファイルのズーム値では画像が表示されません。</translation>
    </message>
    <message>
        <source>No axis yet: pick one star at three RA angles first.</source>
        <translation>軸が未測定です：先に 1 つの星を 3 つの赤経角度で選択してください。</translation>
    </message>
    <message>
        <source>Monitoring without an alignment: press &apos;Restart&apos;.</source>
        <translation>極軸合わせなしで監視中です：「最初から」を押してください。</translation>
    </message>
    <message>
        <source>The pole star was not double clicked.</source>
        <translation>極星がダブルクリックされていません。</translation>
    </message>
    <message>
        <source>The template was not placed on the pole star.</source>
        <translation>テンプレートが極星に置かれていません。</translation>
    </message>
    <message>
        <source>Old place of the template: double click the pole star again.</source>
        <translation>テンプレートは前の位置のままです：極星を再度ダブルクリックしてください。</translation>
    </message>
    <message>
        <source>No star here.</source>
        <translation>ここに星はありません。</translation>
    </message>
    <message>
        <source>No star here (pick %1 of 3).</source>
        <translation>ここに星はありません（選択 %1/3）。</translation>
    </message>
    <message>
        <source>Stars A and B lost.</source>
        <translation>星 A と星 B を見失いました。</translation>
    </message>
    <message>
        <source>Star A lost.</source>
        <translation>星 A を見失いました。</translation>
    </message>
    <message>
        <source>Star B lost.</source>
        <translation>星 B を見失いました。</translation>
    </message>
    <message>
        <source>The template does not fit: %1 of %2 rings hold a star.</source>
        <translation>テンプレートが合っていません：%2 個の輪のうち星があるのは %1 個です。</translation>
    </message>
    <message>
        <source>The star moved by only %1 px between the picks.</source>
        <translation>選択の間に星が %1 px しか動いていません。</translation>
    </message>
    <message>
        <source>The axis turned by only %1° between the picks.</source>
        <translation>選択の間に軸が %1° しか回っていません。</translation>
    </message>
    <message>
        <source>The tracking dial still stands at %1°: reset it.</source>
        <translation>追跡ダイヤルが %1° のままです：リセットしてください。</translation>
    </message>
    <message>
        <source>The ring lies under the magnifier.</source>
        <translation>回転する円が拡大鏡の下にあります。</translation>
    </message>
    <message>
        <source>Settings will not be kept: their file cannot be written.</source>
        <translation>設定は保存されません：ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>Settings will not be kept: Quorvandel.ini is not a file.</source>
        <translation>設定は保存されません：Quorvandel.ini がファイルではありません。</translation>
    </message>
    <message>
        <source>Settings will not be kept: the disk is full.</source>
        <translation>設定は保存されません：ディスクがいっぱいです。</translation>
    </message>
    <message>
        <source>Settings will not be kept: their folder cannot be written.</source>
        <translation>設定は保存されません：フォルダーに書き込めません。</translation>
    </message>
</context>
<context>
    <name>PoleTrackingDialog</name>
    <message>
        <source>Pole Tracking</source>
        <translation>極の追跡</translation>
    </message>
    <message>
        <source>If the Pole was lost after used GOTO in the astrograph, then you can this to track.</source>
        <translation>自動導入の後に天の極を見失ったときは、ここで追跡できます。</translation>
    </message>
    <message>
        <source>Tracking:</source>
        <translation>追跡:</translation>
    </message>
    <message>
        <source>Turn back by one degree</source>
        <translation>1° 戻す</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Tracking angle in degrees</source>
        <translation>追跡角度（度）</translation>
    </message>
    <message>
        <source>Turn on by one degree</source>
        <translation>1° 進める</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>0に戻す</translation>
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
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>ファイルの場所:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>フォルダー:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N):</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ファイルの種類:</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>親フォルダー</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新しいフォルダーを作成</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>一覧表示</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>詳細表示</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 は既に存在します。
置き換えますか？</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>前に戻る</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>次に進む</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>上のフォルダーへ移動</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>新しいフォルダーを作成する</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>一覧表示に切り替える</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>詳細表示に切り替える</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>サイドバー</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>場所とブックマークの一覧</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>表示: </translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>名前の変更(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>隠しファイルを表示(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>新しいフォルダー(&amp;N)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新しいフォルダー</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>「%1」は書き込みが禁止されています。
それでも削除しますか？</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>フォルダーを削除できませんでした。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 ファイル</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>無効なファイル名</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;「%1」という名前は使えません。&lt;/b&gt;&lt;p&gt;もっと短い名前か、記号のない名前にしてください。</translation>
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
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>ここまでスクロール</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>左端</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>一番上</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>右端</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>一番下</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>1ページ左へ</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>1ページ上へ</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>1ページ右へ</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>1ページ下へ</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>左へスクロール</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>右へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
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
        <translation>取り除く</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>リンク先をコピー(&amp;L)</translation>
    </message>
</context>
</TS>
