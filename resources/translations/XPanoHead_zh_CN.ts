<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>标准</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>鱼眼</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Papywizard XML 使用了包围曝光，但图像数量不是每个位置曝光张数的整数倍。</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>选择预设文件和/或图像</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>所有文件 (*.*);;XML 文件 (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>选择图像</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML 中使用了包围曝光，图像数量应为该数的整数倍</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>与 XML 文件中的数量不同</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的焦距不同</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的镜头类型不同</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard 全景云台控制软件</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Papywizard 导入</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; 是用于驱动 Merlin/Orion 全景云台的自由项目。其 XML 文件格式是开放的，被许多电动全景云台采用。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
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
        <translation>重置</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>图像数量：</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>无</translation>
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
        <translation>包围曝光：</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML 焦距：</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>图像：</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>图像焦距：</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>拍摄设置</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>反转 Y 坐标</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>焦距：</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>镜头类型：</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>使用 XML 信息</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>使用图像信息</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>堆叠</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>检测链接的范围：</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>参考层</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>所有堆叠层</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>对于堆叠：</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>使用固定链接</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>检测控制点</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>检测选项</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自动检测</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>清除错误链接</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>跳过优化</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>使用记录的位置</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>头信息</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>标题：</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS：</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>备注：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
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
