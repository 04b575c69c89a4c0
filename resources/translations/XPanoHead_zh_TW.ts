<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>讀取檔案時發生錯誤：%1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>選擇拍攝記錄檔和/或影像</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>選擇影像</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>記憶體不足，無法處理這麼多影像。請關閉其他程式後再試一次。</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Clauss 全景雲台</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Clauss 全景雲台匯入</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; 提供用於全景攝影和 VR 應用的專用設備。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>指令碼檔案：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>拍攝位置數量：</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Theta:</source>
        <translation>Theta：</translation>
    </message>
    <message>
        <source>Phi:</source>
        <translation>Phi：</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>反轉 Y 座標</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>影像：</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>影像數量：</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>引導最佳化</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>選擇影像</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>張影像，共 </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>記憶體不足，無法處理這麼多影像。請關閉其他程式後再試一次。</translation>
    </message>
</context>
<context>
    <name>UIWPGigapanClass</name>
    <message>
        <source>UIWPGigapan</source>
        <translation>UIWPGigapan</translation>
    </message>
    <message>
        <source>Gigapan panorama import</source>
        <translation>Gigapan 全景匯入</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; 讓使用者上傳、分享和瀏覽來自世界各地的十億像素級以上的精彩全景圖。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>影像：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>影像數量</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>列 ×</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>欄</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>略過開頭的檔案數 </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>每個位置的影像數（包圍曝光）</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>拍攝佈局</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>依欄（預設）</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>依欄：向左</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>依列：向下</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>依列：向上</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>拍攝設定</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>強制 360° 全景</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>重疊</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>偵測連結的範圍：</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>參考層</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>所有堆疊層</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>堆疊內：</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>偵測選項</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>UIWPMerlin</name>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>魚眼</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Papywizard XML 使用了包圍曝光，但影像數量不是每個位置曝光張數的整數倍。</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>選擇拍攝記錄檔和/或影像</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>所有檔案 (*.*);;XML 檔案 (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>選擇影像</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML 中使用了包圍曝光，影像數量應為該數的整數倍</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>與 XML 檔案中的數量不同</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的焦距不同</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的鏡頭類型不同</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>記憶體不足，無法處理這麼多影像。請關閉其他程式後再試一次。</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard 全景雲台控制軟體</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Papywizard 匯入</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; 是用於驅動 Merlin/Orion 全景雲台的自由專案。其 XML 檔案格式是開放的，被許多電動全景雲台採用。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>影像數量：</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>偏航角：</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>俯仰角：</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>包圍曝光：</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>影像：</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>影像焦距：</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>拍攝設定</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>反轉 Y 座標</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋轉</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>向右旋轉</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>鏡頭類型：</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>使用 XML 資訊</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>使用影像資訊</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>偵測連結的範圍：</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>參考層</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>所有堆疊層</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>堆疊內：</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>偵測選項</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>使用記錄的位置</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>標頭資訊</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>標題：</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS：</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>備註：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2</name>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>魚眼</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Papywizard XML 使用了包圍曝光，但影像數量不是每個位置曝光張數的整數倍。</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>選擇拍攝記錄檔和/或影像</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>所有檔案 (*.*);;XML 檔案 (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>選擇影像</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML 中使用了包圍曝光，影像數量應為該數的整數倍</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>與 XML 檔案中的數量不同</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的焦距不同</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF 與 XML 的鏡頭類型不同</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>記憶體不足，無法處理這麼多影像。請關閉其他程式後再試一次。</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>VR Drive II 匯入外掛程式</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; 外掛程式提供自動化的 HDR 工作流程，所有參數均已設好，可真實還原光線，並便於使用 Weavix 軟體。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>影像：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>影像數量：</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>影像焦距：</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>偏航角：</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>俯仰角：</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>包圍曝光：</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>輸出：</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 位元 / 16 位元色調對應</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>32 位元 HDR 輻射亮度</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>拍攝設定</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>反轉 Y 座標</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋轉</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>向右旋轉</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>鏡頭類型：</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>使用 XML 資訊</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>使用影像資訊</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>堆疊</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>偵測連結的範圍：</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>參考層</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>所有堆疊層</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>堆疊內：</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>使用固定連結</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>偵測控制點</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>偵測選項</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動偵測</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>清除錯誤連結</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>略過最佳化</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>使用記錄的位置</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
</context>
</TS>
