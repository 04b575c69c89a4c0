<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>正在讀取相片</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>正在沖洗 RAW 檔案</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>正在尋找相片中的細節</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>正在比對相鄰相片</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>正在將相片放到適當位置</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>正在比對相片的亮度</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>正在合併包圍曝光</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>正在變形相片</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>正在混合相片</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>正在融合包圍曝光</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>正在寫入影像</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>正在製作網頁</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>正在切割縮放瀏覽用的圖磚</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1（第 %2 步，共 %3 步）</translation>
    </message>
    <message>
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%3 dpi 時 %1 x %2 英寸</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%3 dpi 時 %1 x %2 公分</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>最大 %1 x %2 像素（%3）；最多使用 %4 磁碟空間和 %5 記憶體。</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>剩餘 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩餘 %1 分鐘</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>剩餘 %1 小時 %2 分鐘</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>關於 panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>授權條款</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost 程式：GPL-3.0-or-later；其原始碼：GPL-2.0-or-later。</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>外掛程式庫 XPanoHead：MIT。</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>使用了下列軟體：</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>授權條款(&amp;L)：</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>只需要相片</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>需要 *.%1 記錄和相片</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2，%3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>相片是用哪一種雲台拍攝的？</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>請選擇雲台，或將其拍攝記錄和相片拖放到此視窗。</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>雲台</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>雲台(&amp;H)：</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>%1 拍攝記錄，共 %2 次拍攝</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1（沒有雲台能讀取）</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>1 張相片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 張相片</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>正在查看檔案</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>選擇拍攝相片的雲台後，即可按「下一個」。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>將檔案拖放到這裡</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>說明(&amp;H)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>偏好設定(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>關於 panohost(&amp;O)</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>匯入全景圖</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>匯入另一組(&amp;A)</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>檔案未被接受</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>這些檔案中沒有拍攝記錄，也沒有相片。</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>有相片的檔名含有雙引號或換行字元，檔案對話框無法處理。請重新命名，或在命令列使用 &quot;panohost import&quot;。</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>要關閉視窗嗎？</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>全景圖仍在製作中。已完成的部分會保留，再次製作時會從該處繼續。</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>全景圖尚未儲存。</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>此頁面的相片和選項將會遺失。</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>某個步驟失敗</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>此頁面無法完成所要求的動作：%1。您的檔案未被變更。請再試一次，或返回並減少檔案數量。</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>請選擇拍攝相片的雲台，然後按「下一個」。也可以將雲台的拍攝記錄和相片，或存放它們的資料夾，拖放到此視窗。</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>請指定全景圖的儲存位置，然後按「製作全景圖」。可以隨時停止：已完成的部分會保留，再次製作時會從該處繼續。</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>按「下一個」可在此製作全景圖。也可以儲存專案並在 Hugin 中開啟，或將描述儲存為 JSON。按「返回」可回到匯入頁面，其中的相片和選項會保留。</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>請選擇雲台的拍攝記錄及其所有相片。當所有相片都已讀取，且數量與拍攝記錄相符時，即可按「下一個」。紅色文字表示不相符之處；最下方的一行會說明原因，可用其中的按鈕修正。</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>製作全景圖</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>將每張相片放到正確的位置，並接合成一張影像。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>記錄檔(&amp;L)</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>在資料夾中顯示(&amp;D)</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>在瀏覽器中開啟(&amp;I)</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>在 Hugin 中開啟(&amp;U)</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>設定(&amp;E)</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>以其他尺寸或其他檔案類型重新製作。</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>無法啟動 Hugin。是否已安裝？</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>變更(&amp;C)...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>與相片同樣清晰</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>寬度減半</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>寬度為四分之一：快速檢視</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>曝光融合：亮部和暗部都看得見</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>僅參考曝光</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>真實光線（HDR）</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>可在任何瀏覽器中開啟的網頁(&amp;G)</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>可縮放瀏覽的資料夾，尺寸不限(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>信任雲台：略過對齊(&amp;T)</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>相片維持雲台記錄的角度。速度較快，適合相片中沒有內容可供比對的情況。</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>影像(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>尺寸(&amp;S)：</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>包圍曝光(&amp;R)：</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>另外產生：</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>角度：</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>全景圖的儲存位置</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>影像 (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>相片是 RAW 檔案，但沒有安裝可沖洗它們的程式。請安裝 libraw-bin、dcraw、darktable 或 rawtherapee，或使用這些相片的 JPEG 檔案。</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>正在估算...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>正在停止...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>正在開始...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>製作全景圖(&amp;M)</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>完成：</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>已停止。已完成的部分會保留，按「製作全景圖」可從該處繼續。</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>此系統未設定用來開啟 %1 的程式。</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>請關閉其他程式，或縮小全景圖的尺寸</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>記憶體不足</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>原因不明</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>完成的全景圖</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>滾輪、+ 和 -：縮放。拖曳、方向鍵：移動。按兩下、0：顯示全部。</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>編號</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>偏航角 %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>俯仰角 %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>滾轉角 %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>對齊後偏航角 %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>對齊後俯仰角 %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>對齊後滾轉角 %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>偏差 %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>點數</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>誤差（像素）</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>曝光 (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>雲台記錄的值：向右為正，單位為度</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>雲台記錄的值：向上為正，單位為度</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>雲台記錄的值：順時針為正，單位為度</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>依相片得出的雲台實際方向與記錄之間的偏差</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>在其他相片中也找到的點的數量</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>對應點之間剩餘的偏差（中位數）</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>第一張相片的值：每增加 1，進光量減半</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>與此相片尋找共同點的相鄰相片數量</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>拍攝位置</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>使用桌面的檔案對話框(&amp;D)</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>與桌面共用縮圖(&amp;T)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好設定</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>系統預設位置</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>選擇(&amp;S)...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>選擇工具資料夾</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>語言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>工具資料夾(&amp;F)：</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>工具：</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>與桌面一致</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>工具資料夾</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1：找不到</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1：已找到，%2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>資料夾不存在</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 不是資料夾；請選擇其他資料夾，或將此欄留空。</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>公分</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>列印單位(&amp;U)：</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>語言的變更會在下次啟動後生效。</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>將雲台的拍攝記錄和相片拖放到這裡</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>將相片拖放到這裡</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>轉動滾輪可縮放，按兩下可顯示全部。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>讀取相片</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>正在提交 %1 張相片...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>%1 / %2 張相片</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>，每秒 %1 張</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1，%2 張相片，%3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>最近的拍攝</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>最近的拍攝(&amp;R)：</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>從此清單移除該次拍攝</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>清除清單(&amp;C)</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>檔案已不存在。</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>檔案已不存在</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>找不到 %1；它可能位於未連接的儲存媒體上。要從清單移除嗎？</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>全景圖</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>請檢查相片的位置是否正確，然後儲存全景圖。</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>全景圖的檢視</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>影像(&amp;R)</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>拍攝位置(&amp;O)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>摘要(&amp;U)</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>返回並輸入(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>儲存專案(&amp;P)...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>儲存描述(&amp;D)...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>儲存表格(&amp;T)...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>在 Hugin 中開啟(&amp;G)</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>尚未儲存</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>全景圖尚未儲存。仍要繼續嗎？</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>沒有可儲存的內容。</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>需要檢查</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>另有 1 項列在摘要中。</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>另有 %1 項列在摘要中。</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>專案未儲存：焦距不明。請返回並在頁面下方的列中輸入焦距。</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>儲存專案</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin 專案 (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>儲存描述</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>描述 (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>儲存表格</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗號分隔值 (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>無法啟動 Hugin。是否已安裝？請嘗試在 Hugin 中開啟已儲存的專案。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultTexts</name>
    <message>
        <source>%1 at %2</source>
        <translation>%2，%1</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 張相片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 張相片</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 個拍攝位置</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 個拍攝位置</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (包圍曝光每組 %1 張)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (包圍曝光每組 %1 至 %2 張)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1，%2，%3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>沒有連結</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 個連結</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 個連結</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1，合成為 HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>拍攝記錄</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>包圍曝光組內</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>視為整體</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>同一組包圍曝光的相片完全重合。</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>適合穩固的三腳架：整組相片共用一個方向。</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>各自獨立</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>在同一組包圍曝光的相片之間也偵測控制點。</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>適合相機在兩次曝光之間可能移動過的情況。</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>錯誤的點</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>只作標記，不影響相片的位置。</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>鏡頭</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>35 mm 等效焦距：表示相片的視角有多廣。</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>魚眼鏡頭，焦距不明</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>標準鏡頭，焦距不明</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>沒有焦距就無法接合。</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>%1 mm 魚眼鏡頭</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>%1 mm 標準鏡頭</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>包圍曝光</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>無，輸出為 HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>已選擇 HDR，但每個拍攝位置只有一次曝光。</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>合成為 HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>影像保存由所有曝光得出的真實光線。</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>供後續處理的程式使用：沒有螢幕能顯示其全部亮度範圍。</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>合成為一般影像</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>取每次曝光中不會太暗也不會太亮的部分。</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>只在這些相鄰的相片組之間偵測控制點。</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>不相鄰的相片不會互相比對，因此不會被相似的天空或牆面誤導。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>只有一個拍攝位置，沒有相鄰相片。</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>改為比對所有重疊的相片。</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>控制點</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>不偵測</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>相片維持在雲台記錄的位置。</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>可以在 Hugin 中手動設定控制點。</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>偵測</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>依兩張相片共有的點，判定它們如何接合。</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>在每組包圍曝光的其中一次曝光偵測</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>使用每組包圍曝光的第一張相片，也就是參考相片。</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>在所有曝光中偵測</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>花費時間較長，但在某次曝光太暗或太亮時能找到更多點。</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>最佳化</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>略過</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>信任雲台：相片維持在其記錄的位置。</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>適合沒有鬆動間隙的雲台，可省去尋找控制點的時間。</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>以記錄為基準</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>控制點會移動相片；沒有控制點的相片維持在記錄的位置。</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>一般的選擇：沒有特徵的天空和牆面會留在原位。</translation>
    </message>
    <message>
        <source>free</source>
        <translation>自由</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>拍攝記錄只作為搜尋的起點。</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>適合雲台打滑的情況。</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>焦距不明：沒有相片記錄焦距。請返回並在頁面下方列中的「焦距」輸入。</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>焦距不明：拍攝記錄和相片都沒有記錄焦距。請返回並在頁面下方列中的「焦距」輸入。</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>鏡頭被視為魚眼鏡頭，但沒有相片顯示是如此。如果不是魚眼鏡頭，請返回並選擇標準鏡頭。</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>相片顯示它們是以魚眼鏡頭拍攝的，但鏡頭被視為標準鏡頭。如果是魚眼鏡頭，請返回並選擇魚眼。</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>在此之前，全部 %1 個拍攝位置都重疊在同一點上。</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>全部 %1 個拍攝位置都在同一點上：依拍攝記錄，雲台沒有轉動。</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>沒有任何兩張相片互相連結：使用 %1 mm 鏡頭時，相鄰相片相距太遠。焦距正確嗎？</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>拍攝間斷</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 未儲存：已有同名的資料夾。請選擇其他名稱。</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 未儲存：資料夾 %2 不存在。它是否已被移動，或所在磁碟已拔除？請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 未儲存：磁碟已滿。請騰出空間，或選擇其他磁碟上的資料夾。</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 未儲存：無法寫入 %2。請選擇您自己的資料夾，例如「圖片」資料夾。</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 未儲存：已有同名檔案且受到保護。請選擇其他名稱。</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 未儲存：名稱太長。請選擇較短的名稱。</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 未儲存：%2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>不使用控制點（自動偵測已關閉）：維持記錄的位置</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>相片維持記錄的位置（略過最佳化）</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>只有一張相片：維持記錄的位置</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>依記錄的位置，沒有任何兩張相片重疊：維持記錄的位置</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>找不到兩張相片共有的點（只有天空或霧，或相片不屬於這份拍攝記錄）：維持記錄的位置</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1；維持記錄的位置</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>沒有一張相片可以使用：匯入後是否移動過？</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>相片較符合順序「%1」，而不是「%2」：請以順序「%1」匯入</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>全景圖已調亮 %1 級：相片中的白色仍是白色</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%2中有 %1 張找到控制點，%3，偏差中位數 %4 像素</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 個點</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 個點</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> 及另外 %1 張</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>%1（%2）中找不到點：維持雲台記錄的位置</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>%1（%2）中找不到點：維持雲台記錄的位置</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>鏡頭為 %1 mm，而不是 %2 mm</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>鏡頭暗角 %1 %：已修正</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>曝光與相片的記錄不符，最多相差 %1 級：已修正</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>雲台的重複精度：%1 度</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>小於 %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>相機裝在雲台上歪了 %1 度</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>雲台的步進角度是設定值的 %1 倍（水平）和 %2 倍（垂直）</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>從 %1 起，雲台比記錄偏右 %2 度：水平轉軸是否打滑了？</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>從 %1 起，雲台比記錄偏左 %2 度：水平轉軸是否打滑了？</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>從 %1 起，雲台比記錄偏高 %2 度：俯仰轉軸是否打滑了？</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>從 %1 起，雲台比記錄偏低 %2 度：俯仰轉軸是否打滑了？</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 的拍攝方向與雲台記錄相差 %2 度：是否被碰到了？</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>剩餘偏差顯示可能有視差（%1 像素）：近的物體相對於遠的物體有移動；相機的節點是否位於雲台的轉軸上？</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>匯入時為 %1 x %2 像素，現在為 %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>無法在該處儲存相片的特徵資料：%1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>請將 TMPDIR 設為空間較大的資料夾</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>無法讀回相片的特徵資料：%1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1：%2，包圍曝光每組 %3 張，焦距 %4，鏡頭 %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>請從記憶卡重新複製</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>選了 %1 張，可讀取 %2 張，焦距 %3，鏡頭 %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>相片和拍攝記錄都沒有記錄焦距</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>請輸入 35 mm 等效焦距</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>有些相片沒有拍攝時間</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 的拍攝時間早於 %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>請試著依時間排序</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>拍攝時間的順序相符</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%2 之後 %1 秒（通常為 %3 秒）</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>魚眼</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>無法建立這個資料夾</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>磁碟是否已滿，或上層資料夾是否為唯讀？</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>立方體的下列各面沒有相片涵蓋，已略過：%1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>無法寫入（%1）</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>請在該處騰出空間，或選擇其他位置</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>資料夾 %1 不存在</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>請建立該資料夾，或選擇其他位置</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>是資料夾</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>請將它移除，或選擇其他名稱</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>是檔案，但此處需要同名的資料夾</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>不是由 panohost 建立的資料夾</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>輸出的檔案不完整</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>磁碟是否已滿？請騰出空間後再試一次</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>請在該處騰出空間後再試一次</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>全景圖為 %1 x %2 像素，而 JPEG 檔案每邊最多 %3 像素</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>請將檔名改為 .tif，或選擇較小的尺寸</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>這張全景圖的數值不是真實光線</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>請在「包圍曝光」選擇「真實光線（HDR）」</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>不是最近一次接合的全景圖</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>請將它移除後再試一次</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>輸出的 %1 不完整</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>磁碟是否已滿？</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>不知道這個資料夾將公開在哪個網址</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>請輸入網址，例如 https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1（其中略過 %2 張）</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1，%2，包圍曝光每組 %3 張，略過 %4 張</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>略過 %1 張後，%2 張中一張也不剩</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>請減少略過的數量，或選擇所有相片</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>包圍曝光每組需要 %1 張，但只有 %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>每個拍攝位置都需要所有曝光的相片</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1，不是包圍曝光每組 %2 張的整數倍</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>每個拍攝位置都需要所有曝光的相片；可用「略過開頭的檔案數」略過開頭多餘的相片</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1（%2，包圍曝光每組 %3 張）</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2無法平均分成 %1</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>是否少了相片？可用「略過開頭的檔案數」略過開頭多餘的相片</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 項</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>從拍攝間隔也看不出位置</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>最長的間斷：%1，依拍攝順序在第 %2 列</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>最長的間斷：%1，依拍攝順序在第 %2 欄</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>從畫面看不出少了哪些相片：%1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>%1沒有相片（列由上往下數，欄由左往右數）</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>檔案不存在</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>不是一般檔案</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>&lt;shoot&gt; 中沒有相片記錄</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>是不是舊格式的 Papywizard 檔案 (image/coords)？</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>&lt;shoot&gt; 中沒有 &lt;pict&gt;：沒有記錄任何拍攝</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>請選擇已完成拍攝的記錄</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>沒有 op_shoot 指令：沒有記錄任何拍攝</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>這是雲台執行的指令碼嗎？</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>請更正這一行，或選擇其他指令碼</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>這是雲台寫入的拍攝記錄嗎？</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>拍攝記錄不存在</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>請檢查名稱</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>不明的雲台「%1」%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>雲台：%1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>無法產生只含其中部分拍攝的記錄</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>請手動補拍</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>沒有適用於 %1 的匯入外掛程式</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>請使用其他外掛程式庫</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>此頁面不接受這些相片</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>請先建立該資料夾</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>請指定其中的檔案</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>請指定您自己的檔案</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>無法寫入該處：%1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>請選擇您自己的資料夾</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>是輸入檔案之一</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>請為結果選擇其他名稱</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>重複指定</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>每張相片只需選擇一次</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>相片不存在</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>請重新命名檔案：檔名不是 UTF-8 編碼</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>請選擇其中的相片，例如 %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>請只選擇相片</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>無法讀取：沒有存取權限</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>請將它複製到您自己的資料夾</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>是否少了相片，或拍攝提早停止了？</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>相片中是否混有試拍的相片？</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>記錄了 %1，但選了 %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>沒有拍攝時間，無法依時間排序</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>請依名稱或依選擇的順序排列</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>拍攝記錄</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>相片的 EXIF 資料</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>相片的 EXIF 資料或拍攝記錄</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>無法從%1得知</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>請返回並輸入（35 mm 等效焦距）</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>焦距在 EXIF 中為 %1，在拍攝記錄中為 %2；採用 EXIF</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 張相片沒有記錄焦距；採用其他相片的焦距</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>鏡頭在 EXIF 中為%1，在拍攝記錄中為%2；採用 EXIF</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>相片記錄的焦距從 %1 到 %2 不等；採用中位數</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>外掛程式頁面</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>沒有「%1」</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>這個程式庫的版本是否不同？</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 不在 %2 到 %3 之間</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>其相片按鈕沒有開啟檔案對話框</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (%2 張相片中另有 %1 張)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>無法讀取（%1）%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>這是相片嗎？</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>此頁面不接受這些相片</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>請檢查這些相片</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>被外掛程式拒絕</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>相片的暫時連結</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>暫存資料夾是否已滿？請將 TMPDIR 設為其他資料夾</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>無對應的拍攝</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>第 %1 次拍攝</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>：%1 可能是%2（%3 %）或%4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>無法確定哪張相片對應哪次拍攝%1；請移除其他拍攝的相片，或指定順序：依名稱、依時間或依選擇的順序</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1（第 %2 次拍攝）</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>相機每次拍了多張相片：各採用最後一張</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>有重複拍攝；採用：%1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>相機的編號在這些相片中重新開始：依時間排序</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>相片編號重新開始（換了記憶卡？）：依時間排序</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>名稱與時間的順序不符：依時間排序</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>%1沒有相片%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (拍攝是否中途停止？)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>如果可以，請補拍</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 小時</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 小時</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>相機的時鐘比雲台快 %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>相機的時鐘比雲台慢 %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>相機的時鐘每分鐘快 %1 秒</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>相機的時鐘每分鐘慢 %1 秒</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>相同的影像：%1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>早於第一次拍攝（試拍？）：已略過</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>尺寸不同：已略過</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>不屬於這次拍攝：已略過</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>無法確認哪張相片對應哪次拍攝（%1）：依名稱順序採用</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>名稱、時間和數量</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>名稱和數量</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>拍攝記錄中沒有時間</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>相片中沒有時間</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>相片與拍攝記錄的時間不符</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>已略過 %1：採用相同相片的其他檔案，JPEG 優先於 RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>未開啟：%1相符</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>網格</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>所有拍攝都沒有對應的相片</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>這些是這次拍攝的相片嗎？</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>是由其他相片製作的影像</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%2之間有 %1</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>；其中 %1附近沒有相鄰位置</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>第 %1 次拍攝</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>，第 %1 次曝光，共 %2 次</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>第 %1 次拍攝沒有相片（偏航角 %2，俯仰角 %3%4）</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>%1沒有相片</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>%1 x %2 像素的全景圖：%4 約需 %3（可用 %5），記憶體需要 %6</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>光線的數值誤差不到百分之一，但所有曝光都過曝或有雜訊的部分除外</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>光線的數值適合觀看，不適合測量：相片的曲線以 sRGB 處理；RAW 檔案可使其準確</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>應存放這張全景圖的中間結果，但其中有其他內容</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>請將它重新命名，或選擇其他名稱</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>專案指定了其他投影方式；全景圖將採用等距柱狀投影</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>包含區域的遮罩沒有作用，只有排除區域的遮罩有效</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>只有完整一圈的全景圖才能變更中心；這張全景圖維持不變</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1：無法完整讀取；請從記憶卡重新複製，或重新拍攝</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>其中 %1 張是 RAW 檔案</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>請安裝 dcraw、dcraw_emu、darktable-cli 或 rawtherapee-cli，或使用這些相片的 JPEG 或 TIFF 檔案</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>相片維持雲台記錄的位置：略過最佳化</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>已完成的部分保留在 %1 中：按「製作全景圖」可從該處繼續</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>相片位於拍攝記錄的位置：尚未對齊</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>Hugin 專案不支援含有引號或換行字元的檔名，而且無法在 %1 中為其建立連結</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>請重新命名檔案</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>請指定 dcraw、dcraw_emu、darktable-cli 或 rawtherapee-cli，或指定以 %i 代表 RAW 檔案、以 %o 代表 TIFF 的指令</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>找不到這個 RAW 轉換程式</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>名稱是否正確？已知的有：apt install dcraw、libraw-bin、darktable 或 rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>相機為 %1 個 RAW 檔案逐張選擇白平衡，而 %2 會照著處理：色彩可能不一致；dcraw 會將第一張的白平衡套用到所有相片</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>無法建立相片的這份副本</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>相片是否可以讀取？磁碟是否已滿？</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>，處理 %1 時</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>沒有輸出 %1 的完整影像</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>它是否支援這台相機的檔案？磁碟是否已滿？</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>沒有指定程式</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>沒有指定檔案的輸出位置</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>第 %2 欄第 %1 列</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>網格超出了一整圈：重疊或列數與這顆鏡頭不符</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n 欄</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n 個檔案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n 個連結</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n 張相片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n 個拍攝位置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n 次拍攝</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>%3 個拍攝位置的 %2 張相片，只有 %1 個記錄的方向</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>其方向不是數字</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>請更正拍攝記錄</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>拍攝位置 %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>沒有相片</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>不含相片</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>請選擇由本程式儲存的描述檔 (JSON)</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>無法讀取（不是相片？）</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>無法解碼其影像（RAW 檔案？）</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>太大，無法解碼</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>請返回並輸入</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>拍攝記錄和相片都沒有記錄焦距</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>沒有 %1 mm 的鏡頭</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>其像素尺寸不明</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>其他程式能開啟它嗎？如果不能，請移除它</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>相片有 %1 種不同的像素尺寸</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>Hugin 專案不支援含有引號或換行字元的檔名</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>%2 張相片中有 %1 張沒有記錄曝光；以 %3 處理</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>大於 %1 位元組</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>請指定檔名</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>請將 PANOHOST_PLUGIN_PATH 設為 libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>檔案或資料夾不存在</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>匯入外掛程式</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>%1 中沒有外掛程式庫</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>不是 Qt 外掛程式庫</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>其介面為「%1」，需要「%2」</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>沒有提供外掛程式清單</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>不含匯入外掛程式</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>無法寫入</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>與同組包圍曝光的其他相片尺寸不同</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>不是變形後的光線影像</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>專案中的這些相片以及另外 %1 張已不存在</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>已不存在</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>請將相片放回原處，或重新匯入</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 每色 %2 位元，%3 為 %4 位元，全部相同才能混合</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>請以相同的位元數轉換或沖洗</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>沒有完整寫入</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>%1 的空間是否足夠？</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona，處理 %1 時</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>沒有產生 %1 的影像</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>這是其他程式能開啟的相片嗎？</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>全景圖的尺寸</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>無法製作 %1 x %2 像素的全景圖</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>請選擇其他尺寸</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>接合在該處需要 %1，可用 %2</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>請騰出空間、選擇其他位置，或選擇較小的尺寸</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>接合約需 %1，可用 %2</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>請關閉其他程式，或選擇較小的尺寸</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>請試著單獨執行它</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>已被強制結束，可能是記憶體不足</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>請關閉其他程式後再試一次</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>程式異常終止（訊號 %1）</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1，訊息為：%2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> 如果足夠：%1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>找不到接合所需的這個程式</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>無法啟動（%1）</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>已停止，因為 %1內沒有任何進展</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>電腦是否非常忙碌，或網路磁碟機是否已中斷連線？請再試一次</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>執行失敗，沒有任何訊息</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>執行失敗，訊息為：%1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>磁碟是否已滿，或其讀取的檔案是否損壞？</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>執行失敗，%1 所在的磁碟幾乎沒有剩餘空間（%2）</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>請在該處騰出空間，然後再按一次「製作全景圖」；已完成的部分不會遺失</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>磁碟先前是否已滿？請移除該檔案後再試一次</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>無法讀取</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>不是 8 位元、16 位元或浮點影像</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>不完整，中途截斷</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>無法對應到記憶體</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>磁碟是否已滿，或資料夾是否為唯讀？</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%3 上的 %1（處理程序 %2）</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>其他程式</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>已有同名的檔案：請將它重新命名，或選擇其他名稱</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>正由 %1 使用</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>請等待它結束，或選擇其他名稱</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>尚未儲存任何內容。</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>已儲存的檔案</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>已將 %1 儲存到 %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>在資料夾中顯示 %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>資料夾 %1 已不存在。它是否已被移動，或所在磁碟已拔除？</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>沒有程式可以顯示該資料夾。其位置為 %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>第 %1 次拍攝：偏航角 %2，俯仰角 %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>相片與各次拍攝不對應：請返回並按「修正」。</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>取代 %1 的檔案</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>沒有相片的拍攝</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>如果可以，請補拍這些相片。否則製作全景圖時將缺少它們。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>平面</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>以平面圖顯示相片</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>球面</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>從相機所在位置環視</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>顯示哪些相片互相連結</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>空隙</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>以斜線標示沒有相片涵蓋的區域</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合視窗</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>顯示整組拍攝</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>焦距不明：相片以 50 mm 顯示</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>沒有空隙</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>未與其他相片連結：%1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>需要檢查</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>尚未確定</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>關於這次拍攝</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>顯示這次拍攝的已知資訊</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>焦距（35 mm 等效）</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>拍攝示意圖：%1，%2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 張相片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 張相片</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 個拍攝位置</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 個拍攝位置</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>拍攝位置 %1 / %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>第 %1 次拍攝，共 %2 次</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>此處 %1 張相片中的第一張</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>偏差 %1 像素</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>沒有控制點</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>未與其他相片連結</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>無法讀取</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>偏差（像素）</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>「下一個」</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>正在等待雲台的拍攝記錄</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>正在等待其他拍攝記錄：此記錄來自 %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>正在等待可以讀取的拍攝記錄</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>正在等待相片</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>正在等待相片讀取完畢</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>等待中：相片與各次拍攝不對應</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>等待中：%2，但收到 %1</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 張相片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 張相片</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 次拍攝</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 次拍攝</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>等待中：有相片無法使用</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>等待中：%1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>等待中：此頁面不接受這些相片</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>拍攝記錄</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>網格</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 張無法使用：%2</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>每張相片都與其拍攝對應</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>相片與各次拍攝不對應</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1，沿用上次此類相片的值</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1，輸入的值</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1，來自拍攝記錄：相片中沒有記錄</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>沒有相片記錄焦距：請輸入 35 mm 等效焦距</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>拍攝間斷</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>其他拍攝記錄：%1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>此程式的輸出：%1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>未採用</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>1 項需要檢查</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>%1 項需要檢查</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>正在檢查相片...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>全部相符</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>選擇拍攝記錄...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>選擇相片...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>取代...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>切換雲台</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>輸入</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>顯示拍攝...</translation>
    </message>
</context>
</TS>
