<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Clauss import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Gigapan import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
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
        <translation>選擇預設檔案和/或影像</translation>
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
        <translation>無</translation>
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
        <translation>無</translation>
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
        <translation>對於堆疊：</translation>
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
        <source>VRDrive2 import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
