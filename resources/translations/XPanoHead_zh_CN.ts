<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>读取文件时出错：%1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>选择拍摄记录文件和/或图像</translation>
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
        <translation>不可用</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>内存不足，无法处理这么多图像。请关闭其他程序后重试。</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Clauss 全景云台</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Clauss 全景云台导入</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; 提供用于全景摄影和 VR 应用的专用设备。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>脚本文件：</translation>
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
        <source>Number of shoot:</source>
        <translation>拍摄位置数量：</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>不可用</translation>
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
        <translation>反转 Y 坐标</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>图像：</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>图像数量：</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
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
        <source>Guided optimization</source>
        <translation>引导优化</translation>
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
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>选择图像</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>张图像，共 </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>内存不足，无法处理这么多图像。请关闭其他程序后重试。</translation>
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
        <translation>Gigapan 全景导入</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; 让用户上传、分享和浏览来自世界各地的十亿像素级以上的精彩全景图。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>图像：</translation>
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
        <source># Images in</source>
        <translation>图像数量</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>行 ×</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>忽略开头的文件数 </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>每个位置的图像数（包围曝光）</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>拍摄布局</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>按列（默认）</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>按列：向左</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>按行：向下</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>按行：向上</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>拍摄设置</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>强制 360° 全景</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>重叠</translation>
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
        <translation>堆叠内：</translation>
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
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
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
        <translation>选择拍摄记录文件和/或图像</translation>
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
        <translation>不可用</translation>
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
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>内存不足，无法处理这么多图像。请关闭其他程序后重试。</translation>
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
        <translation>不可用</translation>
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
        <translation>堆叠内：</translation>
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
        <translation>选择拍摄记录文件和/或图像</translation>
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
        <translation>不可用</translation>
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
        <source>Focal length difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的焦距不同</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF 与 XML 的镜头类型不同</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>内存不足，无法处理这么多图像。请关闭其他程序后重试。</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>VR Drive II 导入插件</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; 插件提供自动化的 HDR 工作流程，所有参数均已设好，可真实还原光线，并便于使用 Weavix 软件。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>图像：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>图像数量：</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>图像焦距：</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
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
        <source>Output:</source>
        <translation>输出：</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 位 / 16 位色调映射</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>32 位 HDR 辐亮度</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
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
        <translation>堆叠内：</translation>
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
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
</context>
</TS>
