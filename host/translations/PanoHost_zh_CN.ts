<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>正在读取照片</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>正在冲洗 RAW 文件</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>正在查找照片中的细节</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>正在比较相邻照片</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>正在将照片放到相应位置</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>正在比较照片的亮度</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>正在合并包围曝光</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>正在变形照片</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>正在混合照片</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>正在融合包围曝光</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>正在写入图像</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>正在制作网页</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>正在切分缩放浏览用的图块</translation>
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
        <translation>%3 dpi 时 %1 x %2 英寸</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%3 dpi 时 %1 x %2 厘米</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>最大 %1 x %2 像素（%3）；最多占用 %4 磁盘空间和 %5 内存。</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩余 %1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>剩余 %1 小时 %2 分钟</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>关于 panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost 程序：GPL-3.0-or-later；其源代码：GPL-2.0-or-later。</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>插件库 XPanoHead：MIT。</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>使用了以下软件：</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>许可证(&amp;L)：</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>只需要照片</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>需要 *.%1 记录和照片</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2，%3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>照片是用哪种云台拍摄的？</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>请选择云台，或将其拍摄记录和照片拖放到此窗口中。</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>云台</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>云台(&amp;H)：</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>%1 拍摄记录，共 %2 次拍摄</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1（没有云台能读取）</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>1 张照片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 张照片</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>正在查看文件</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>选择拍摄照片的云台后，即可点击“下一步”。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>将文件拖放到此处</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>首选项(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>关于 panohost(&amp;O)</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>导入全景图</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>导入另一组(&amp;A)</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>文件未被接受</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>这些文件中既没有拍摄记录，也没有照片。</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>有照片的文件名包含双引号或换行符，文件对话框无法处理。请重命名，或在命令行中使用 &quot;panohost import&quot;。</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>要关闭窗口吗？</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>全景图仍在制作中。已完成的部分会保留，再次制作时将从该处继续。</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>全景图尚未保存。</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>此页面的照片和选项将会丢失。</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>某个步骤失败</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>此页面无法完成所需的操作：%1。您的文件未被更改。请重试，或返回并减少文件数量。</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>请选择拍摄照片的云台，然后点击“下一步”。也可以将云台的拍摄记录和照片，或包含它们的文件夹，拖放到此窗口中。</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>请指定全景图的保存位置，然后点击“制作全景图”。可以随时停止：已完成的部分会保留，再次制作时将从该处继续。</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>点击“下一步”可在此制作全景图。也可以保存项目并在 Hugin 中打开，或将描述保存为 JSON。点击“上一步”可返回导入页面，其中的照片和选项会保留。</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>请选择云台的拍摄记录及其全部照片。当所有照片都已读取，且数量与拍摄记录一致时，“下一步”即可使用。红色文字表示不相符之处；最下方的一行会说明原因，可用其中的按钮修正。</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>制作全景图</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>将每张照片放到正确的位置，并拼接成一幅图像。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>日志(&amp;L)</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>在文件夹中显示(&amp;D)</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>在浏览器中打开(&amp;I)</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>在 Hugin 中打开(&amp;U)</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>设置(&amp;E)</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>以其他尺寸或其他文件类型重新制作。</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>无法启动 Hugin。是否已安装？</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>更改(&amp;C)...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>与照片同样清晰</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>宽度减半</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>宽度为四分之一：快速查看</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>曝光融合：亮部和暗部都可见</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>仅参考曝光</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>真实光线（HDR）</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>可在任何浏览器中打开的网页(&amp;G)</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>可缩放浏览的文件夹，尺寸不限(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>信任云台：跳过对齐(&amp;T)</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>照片保持云台记录的角度。速度更快，适合照片中没有可参照内容的情况。</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>图像(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>尺寸(&amp;S)：</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>包围曝光(&amp;R)：</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>另外生成：</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>角度：</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>全景图的保存位置</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>图像 (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>照片是 RAW 文件，但没有安装可冲洗它们的程序。请安装 libraw-bin、dcraw、darktable 或 rawtherapee，或使用这些照片的 JPEG 文件。</translation>
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
        <translation>正在开始...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>制作全景图(&amp;M)</translation>
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
        <translation>已停止。已完成的部分会保留，点击“制作全景图”可从该处继续。</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>此系统未设置用于打开 %1 的程序。</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>请关闭其他程序，或缩小全景图的尺寸</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>内存不足</translation>
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
        <translation>完成的全景图</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>滚轮、+ 和 -：缩放。拖动、方向键：移动。双击、0：显示全部。</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
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
        <translation>横滚角 %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>对齐后偏航角 %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>对齐后俯仰角 %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>对齐后横滚角 %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>偏差 %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>误差（像素）</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>曝光 (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>云台记录的值：向右为正，单位为度</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>云台记录的值：向上为正，单位为度</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>云台记录的值：顺时针为正，单位为度</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>根据照片得出的云台实际方向与记录之间的偏差</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>在其他照片中也找到的点的数量</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>对应点之间剩余的偏差（中位数）</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>第一张照片的值：每增加 1，进光量减半</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>与此照片查找共同点的相邻照片数量</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>拍摄位置</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>使用桌面的文件对话框(&amp;D)</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>与桌面共享缩略图(&amp;T)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>系统默认位置</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>选择(&amp;S)...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>选择工具文件夹</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>工具文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>工具：</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>与桌面一致</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>工具文件夹</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1：未找到</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1：已找到，%2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>文件夹不存在</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 不是文件夹；请选择其他文件夹，或将此栏留空。</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>打印单位(&amp;U)：</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>语言的更改在下次启动后生效。</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>将云台的拍摄记录和照片拖放到此处</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>将照片拖放到此处</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>滚动滚轮可缩放，双击可显示全部。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>读取照片</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>正在提交 %1 张照片...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>%1 / %2 张照片</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>，每秒 %1 张</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1，%2 张照片，%3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>最近的拍摄</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>最近的拍摄(&amp;R)：</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>从此列表中移除该拍摄</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>文件已不存在。</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>文件已不存在</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>找不到 %1；它可能位于未连接的存储介质上。要从列表中移除吗？</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>全景图</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>请检查照片的位置是否正确，然后保存全景图。</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>全景图的视图</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>图像(&amp;R)</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>拍摄位置(&amp;O)</translation>
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
        <translation>返回并输入(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>保存项目(&amp;P)...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>保存描述(&amp;D)...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>保存表格(&amp;T)...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>在 Hugin 中打开(&amp;G)</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>尚未保存</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>全景图尚未保存。仍要继续吗？</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>没有可保存的内容。</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>需要检查</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>另有 1 项列在摘要中。</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>另有 %1 项列在摘要中。</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>项目未保存：焦距未知。请返回并在页面下方的行中输入焦距。</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>保存项目</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin 项目 (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>保存描述</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>描述 (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>保存表格</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值 (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>无法启动 Hugin。是否已安装？请尝试在 Hugin 中打开已保存的项目。</translation>
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
        <translation>1 张照片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 张照片</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 个拍摄位置</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 个拍摄位置</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (包围曝光每组 %1 张)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (包围曝光每组 %1 至 %2 张)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1，%2，%3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>没有链接</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 个链接</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 个链接</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1，合成为 HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>拍摄记录</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>包围曝光组内</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>作为整体</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>同一组包围曝光的照片完全重合。</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>适合稳固的三脚架：整组照片共用一个方向。</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>各自独立</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>在同一组包围曝光的照片之间也检测控制点。</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>适合相机在两次曝光之间可能移动过的情况。</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>错误的点</translation>
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
        <translation>只作标记，不影响照片的位置。</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>35 mm 等效焦距：表示照片的视角有多宽。</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>鱼眼镜头，焦距未知</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>标准镜头，焦距未知</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>没有焦距就无法拼接。</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>%1 mm 鱼眼镜头</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>%1 mm 标准镜头</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>包围曝光</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>无，输出为 HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>已选择 HDR，但每个拍摄位置只有一次曝光。</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>合成为 HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>图像保存由所有曝光得出的真实光线。</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>供后续处理的程序使用：没有屏幕能显示其全部亮度范围。</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>合成为普通图像</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>取每次曝光中既不过暗也不过亮的部分。</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>仅在这些相邻照片对之间检测控制点。</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>不相邻的照片不会相互比较，因此不会被相似的天空或墙面误导。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>只有一个拍摄位置，没有相邻照片。</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>改为比较所有重叠的照片。</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>控制点</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>不检测</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>照片保持在云台记录的位置。</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>可以在 Hugin 中手动设置控制点。</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>检测</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>根据两张照片共有的点确定它们如何拼接。</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>在每组包围曝光的一次曝光中检测</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>使用每组包围曝光的第一张照片，即参考照片。</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>在所有曝光中检测</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>耗时较长，但在某次曝光过暗或过亮时能找到更多的点。</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>优化</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>信任云台：照片保持在其记录的位置。</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>适合没有间隙松动的云台，可省去查找控制点的时间。</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>以记录为基准</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>控制点会移动照片；没有控制点的照片保持在记录的位置。</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>通常的选择：没有特征的天空和墙面会留在原位。</translation>
    </message>
    <message>
        <source>free</source>
        <translation>自由</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>拍摄记录仅作为搜索的起点。</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>适合云台打滑的情况。</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>焦距未知：没有照片记录焦距。请返回并在页面下方的行中的“焦距”处输入。</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>焦距未知：拍摄记录和照片都没有记录焦距。请返回并在页面下方的行中的“焦距”处输入。</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>镜头被视为鱼眼镜头，但没有照片表明这一点。如果不是鱼眼镜头，请返回并选择标准镜头。</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>照片表明它们是用鱼眼镜头拍摄的，但镜头被视为标准镜头。如果是鱼眼镜头，请返回并选择鱼眼。</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>在此之前，全部 %1 个拍摄位置都重叠在同一点上。</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>全部 %1 个拍摄位置都在同一点上：根据拍摄记录，云台没有转动。</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>没有任何两张照片相互链接：使用 %1 mm 镜头时，相邻照片相距太远。焦距正确吗？</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>顺序</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>拍摄间断</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 未保存：已有同名文件夹。请选择其他名称。</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 未保存：文件夹 %2 不存在。它是否已被移动，或所在磁盘已断开？请选择其他文件夹。</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 未保存：磁盘已满。请腾出空间，或选择其他磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 未保存：无法写入 %2。请选择您自己的文件夹，例如“图片”文件夹。</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 未保存：已有同名文件且受到保护。请选择其他名称。</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 未保存：名称太长。请选择较短的名称。</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 未保存：%2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>不使用控制点（自动检测已关闭）：保持记录的位置</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>照片保持记录的位置（已跳过优化）</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>只有一张照片：保持记录的位置</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>按记录的位置，没有任何两张照片重叠：保持记录的位置</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>没有在两张照片中找到共同的点（只有天空或雾，或照片不属于此拍摄记录）：保持记录的位置</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1；保持记录的位置</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>没有一张照片可用：导入后是否移动过？</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>照片更符合顺序“%1”，而不是“%2”：请以顺序“%1”导入</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>全景图已调亮 %1 档：照片中的白色仍为白色</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%2中有 %1 张找到控制点，%3，偏差中位数 %4 像素</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 个点</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 个点</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> 及另外 %1 张</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>%1（%2）中没有找到点：保持云台记录的位置</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>%1（%2）中没有找到点：保持云台记录的位置</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>镜头为 %1 mm，而不是 %2 mm</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>镜头边角变暗 %1 %：已校正</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>曝光与照片的记录不符，最多相差 %1 档：已校正</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>云台的重复精度：%1 度</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>小于 %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>相机在云台上歪斜了 %1 度</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>云台的步进角度是设定值的 %1 倍（水平）和 %2 倍（垂直）</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>从 %1 开始，云台比记录偏右 %2 度：水平转轴是否打滑了？</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>从 %1 开始，云台比记录偏左 %2 度：水平转轴是否打滑了？</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>从 %1 开始，云台比记录偏高 %2 度：俯仰转轴是否打滑了？</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>从 %1 开始，云台比记录偏低 %2 度：俯仰转轴是否打滑了？</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 的拍摄方向与云台记录相差 %2 度：是否被碰到了？</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>剩余偏差表明可能有视差（%1 像素）：近处的物体相对远处的物体有移动；相机的节点是否在云台的转轴上？</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>导入时为 %1 x %2 像素，现在为 %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>无法在该处保存照片的特征数据：%1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>请将 TMPDIR 设为空间更大的文件夹</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>无法读回照片的特征数据：%1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1：%2，包围曝光每组 %3 张，焦距 %4，镜头 %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>请从存储卡重新复制</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>选择了 %1 张，可读取 %2 张，焦距 %3，镜头 %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>照片和拍摄记录都没有记录焦距</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>请输入 35 mm 等效焦距</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>并非所有照片都有拍摄时间</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 的拍摄时间早于 %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>请尝试按时间排序</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>拍摄时间顺序一致</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%2 之后 %1 秒（通常为 %3 秒）</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>鱼眼</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>无法创建此文件夹</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>磁盘是否已满，或上级文件夹是否为只读？</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>立方体的以下各面没有照片覆盖，已略去：%1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>无法写入（%1）</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>请在该处腾出空间，或选择其他位置</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>请创建该文件夹，或选择其他位置</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>请将其删除，或选择其他名称</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>是文件，而此处需要同名的文件夹</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>不是由 panohost 创建的文件夹</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>输出的文件不完整</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>磁盘是否已满？请腾出空间后重试</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>请在该处腾出空间后重试</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>全景图为 %1 x %2 像素，而 JPEG 文件每边最多 %3 像素</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>请将文件名改为 .tif，或选择较小的尺寸</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>此全景图的数值不是真实光线</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>请在“包围曝光”中选择“真实光线（HDR）”</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>不是最近一次拼接的全景图</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>请将其删除后重试</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>输出的 %1 不完整</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>磁盘是否已满？</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>不知道该文件夹将发布到的网址</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>请输入网址，例如 https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1（其中忽略 %2 张）</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1，%2，包围曝光每组 %3 张，忽略 %4 张</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>忽略 %1 张后，%2 张中一张也不剩</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>请减少忽略的数量，或选择全部照片</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>包围曝光每组需要 %1 张，而只有 %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>每个拍摄位置都需要全部曝光的照片</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1，不是包围曝光每组 %2 张的整数倍</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>每个拍摄位置都需要全部曝光的照片；可用“忽略开头的文件数”略去开头多余的照片</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1（%2，包围曝光每组 %3 张）</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2无法平均分成 %1</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>是否缺少照片？可用“忽略开头的文件数”略去开头多余的照片</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 项</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>从拍摄间隔也看不出位置</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>最长的间断：%1，按拍摄顺序在第 %2 行</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>最长的间断：%1，按拍摄顺序在第 %2 列</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>从画面看不出缺少哪些照片：%1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>%1没有照片（行从上往下数，列从左往右数）</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>&lt;shoot&gt; 中没有照片记录</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>是否为旧格式的 Papywizard 文件 (image/coords)？</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>&lt;shoot&gt; 中没有 &lt;pict&gt;：没有记录任何拍摄</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>请选择已完成拍摄的记录</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>没有 op_shoot 命令：没有记录任何拍摄</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>这是云台运行的脚本吗？</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>请改正此行，或选择其他脚本</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>这是云台写入的拍摄记录吗？</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>拍摄记录不存在</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>请检查名称</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>未知的云台“%1”%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>云台：%1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>无法生成只含其中部分拍摄的记录</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>请手动补拍</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>使用 %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>没有用于 %1 的导入插件</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>请使用其他插件库</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>此页面不接受这些照片</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>请先创建该文件夹</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>请指定其中的文件</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>请指定您自己的文件</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>无法写入该处：%1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>请选择您自己的文件夹</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>是输入文件之一</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>请为结果选择其他名称</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>重复指定</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>每张照片只需选择一次</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>照片不存在</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>请重命名文件：其文件名不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>请选择其中的照片，例如 %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>请只选择照片</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>无法读取：没有权限</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>请将其复制到您自己的文件夹</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>是否缺少照片，或拍摄提前停止了？</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>照片中是否混有试拍的照片？</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>记录了 %1，但选择了 %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>没有拍摄时间，无法按时间排序</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>请按名称或按选择的顺序排列</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>拍摄记录</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>照片的 EXIF 数据</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>照片的 EXIF 数据或拍摄记录</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>无法从%1得知</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>请返回并输入（35 mm 等效焦距）</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>焦距在 EXIF 中为 %1，在拍摄记录中为 %2；采用 EXIF</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 张照片没有记录焦距；采用其他照片的焦距</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>镜头在 EXIF 中为%1，在拍摄记录中为%2；采用 EXIF</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>照片记录的焦距从 %1 到 %2 不等；采用中位数</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>插件页面</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>没有“%1”</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>此库的版本是否不同？</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 不在 %2 至 %3 之间</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>其照片按钮没有打开文件对话框</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (%2 张照片中另有 %1 张)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>无法读取（%1）%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>这是照片吗？</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>此页面不接受这些照片</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>请检查这些照片</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>被插件拒绝</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>照片的临时链接</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>临时文件夹是否已满？请将 TMPDIR 设为其他文件夹</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>无对应拍摄</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>第 %1 次拍摄</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>：%1 可能是%2（%3 %）或%4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>无法确定哪张照片对应哪次拍摄%1；请移除其他拍摄的照片，或指定顺序：按名称、按时间或按选择的顺序</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1（第 %2 次拍摄）</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>相机每次拍摄了多张照片：各采用最后一张</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>有重复拍摄；采用：%1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>相机的编号在这些照片中重新开始：按时间排序</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>照片编号重新开始（换了存储卡？）：按时间排序</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>名称与时间的顺序不一致：按时间排序</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>%1没有照片%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (拍摄是否中途停止？)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>如有可能，请补拍</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>相机的时钟比云台快 %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>相机的时钟比云台慢 %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>相机的时钟每分钟快 %1 秒</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>相机的时钟每分钟慢 %1 秒</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>相同的图像：%1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>早于第一次拍摄（试拍？）：已略去</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>尺寸不同：已略去</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>不属于此次拍摄：已略去</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>无法核对哪张照片对应哪次拍摄（%1）：按名称顺序采用</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>名称、时间和数量</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>名称和数量</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>拍摄记录中没有时间</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>照片中没有时间</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>照片与拍摄记录的时间不一致</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>已略去 %1：采用同一照片的其他文件，JPEG 优先于 RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>未打开：%1一致</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>所有拍摄都没有对应的照片</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>这些是此次拍摄的照片吗？</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>是由其他照片制作的图像</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%2之间有 %1</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>；其中 %1附近没有相邻位置</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>第 %1 次拍摄</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>，第 %1 次曝光，共 %2 次</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>第 %1 次拍摄没有照片（偏航角 %2，俯仰角 %3%4）</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>%1没有照片</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>%1 x %2 像素的全景图：%4 需要约 %3（可用 %5），内存需要 %6</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>光线的数值误差不到百分之一，但所有曝光都过曝或有噪点的部分除外</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>光线的数值适合观看，不适合测量：照片的曲线按 sRGB 处理；RAW 文件可使其准确</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>应存放此全景图的中间结果，但其中有其他内容</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>请将其重命名，或选择其他名称</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>项目指定了其他投影方式；全景图将采用等距柱状投影</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>包含区域的蒙版不起作用，只有排除区域的蒙版有效</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>只有完整一圈的全景图才能改变中心；此全景图保持不变</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1：无法完整读取；请从存储卡重新复制，或重新拍摄</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>其中 %1 张是 RAW 文件</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>请安装 dcraw、dcraw_emu、darktable-cli 或 rawtherapee-cli，或使用这些照片的 JPEG 或 TIFF 文件</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>照片保持云台记录的位置：已跳过优化</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>已完成的部分保留在 %1 中：点击“制作全景图”可从该处继续</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>照片位于拍摄记录的位置：尚未对齐</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>Hugin 项目不支持含引号或换行符的文件名，且无法在 %1 中为其创建链接</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>请重命名文件</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>请指定 dcraw、dcraw_emu、darktable-cli 或 rawtherapee-cli，或指定以 %i 表示 RAW 文件、以 %o 表示 TIFF 的命令</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>未找到此 RAW 转换程序</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>名称是否正确？已知的有：apt install dcraw、libraw-bin、darktable 或 rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>相机为 %1 个 RAW 文件逐张选择了白平衡，而 %2 照此处理：颜色可能不一致；dcraw 会对所有照片采用第一张的白平衡</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>无法创建照片的此副本</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>照片能否读取？磁盘是否已满？</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>，处理 %1 时</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>没有输出 %1 的完整图像</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>它支持此相机的文件吗？磁盘是否已满？</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>没有指定程序</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>没有指定文件的输出位置</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>第 %2 列第 %1 行</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>网格超出了一整圈：重叠或行数与此镜头不符</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n 列</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n 个链接</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n 个拍摄位置</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n 次拍摄</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>%3 个拍摄位置的 %2 张照片，只有 %1 个记录的方向</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>其方向不是数字</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>请改正拍摄记录</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>拍摄位置 %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>没有照片</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>不含照片</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>请选择由本程序保存的描述文件 (JSON)</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>无法读取（不是照片？）</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>无法解码其图像（RAW 文件？）</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>太大，无法解码</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>请返回并输入</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>拍摄记录和照片都没有记录焦距</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>没有 %1 mm 的镜头</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>其像素尺寸未知</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>其他程序能打开它吗？如果不能，请移除它</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>照片有 %1 种不同的像素尺寸</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>Hugin 项目不支持含引号或换行符的文件名</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>%2 张照片中有 %1 张没有记录曝光；按 %3 处理</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>大于 %1 字节</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>请指定文件名</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>请将 PANOHOST_PLUGIN_PATH 设为 libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>文件或文件夹不存在</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>导入插件</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>%1 中没有插件库</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>不是 Qt 插件库</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>其接口为“%1”，需要“%2”</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>没有提供插件列表</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>不含导入插件</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>与同组包围曝光的其他照片尺寸不同</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>不是变形后的光线图像</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>项目中的这些照片以及另外 %1 张已不存在</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>已不存在</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>请将照片放回原处，或重新导入</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 每种颜色 %2 位，%3 为 %4 位，全部一致才能混合</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>请以相同的位数转换或冲洗</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>没有完整写入</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>%1 中的空间是否足够？</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona，处理 %1 时</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>没有生成 %1 的图像</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>这是其他程序能打开的照片吗？</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>全景图的尺寸</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>无法制作 %1 x %2 像素的全景图</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>请选择其他尺寸</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>拼接在该处需要 %1，可用 %2</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>请腾出空间，选择其他位置，或选择较小的尺寸</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>拼接需要约 %1，可用 %2</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>请关闭其他程序，或选择较小的尺寸</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>请尝试单独运行它</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>已被强制终止，可能是内存不足</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>请关闭其他程序后重试</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>程序崩溃（信号 %1）</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1，并提示：%2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> 如果足够：%1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>未找到拼接所需的此程序</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>无法启动（%1）</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>已停止，因为 %1内没有任何进展</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>电脑是否非常繁忙，或网络驱动器是否已断开？请重试</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>运行失败，没有任何提示</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>运行失败，并提示：%1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>磁盘是否已满，或其读取的文件是否已损坏？</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>运行失败，%1 所在磁盘几乎没有剩余空间（%2）</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>请在该处腾出空间，然后再次点击“制作全景图”；已完成的部分不会丢失</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>磁盘之前是否已满？请删除该文件后重试</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>不是 8 位、16 位或浮点图像</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>不完整，中途截断</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>无法映射到内存</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>磁盘是否已满，或文件夹是否为只读？</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%3 上的 %1（进程 %2）</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>其他程序</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>已有同名文件：请将其重命名，或选择其他名称</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>正由 %1 使用</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>请等待其结束，或选择其他名称</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>尚未保存任何内容。</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>已保存的文件</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>已将 %1 保存到 %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>在文件夹中显示 %1</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>文件夹 %1 已不存在。它是否已被移动，或所在磁盘已断开？</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>没有程序可以显示该文件夹。其位置为 %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>第 %1 次拍摄：偏航角 %2，俯仰角 %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>照片与各次拍摄不对应：请返回并点击“修正”。</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>替换 %1 的文件</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>没有照片的拍摄</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>如有可能，请补拍这些照片。否则制作全景图时将缺少它们。</translation>
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
        <translation>以平面图显示照片</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>球面</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>从相机所在位置环视</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>显示哪些照片相互链接</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>空隙</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>用斜线标出没有照片覆盖的区域</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>显示整组拍摄</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>焦距未知：照片按 50 mm 显示</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>没有空隙</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>未与其他照片链接：%1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>需要检查</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>尚未确定</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>关于此次拍摄</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>显示此次拍摄的已知信息</translation>
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
        <translation>拍摄示意图：%1，%2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 张照片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 张照片</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 个拍摄位置</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 个拍摄位置</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>拍摄位置 %1 / %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>第 %1 次拍摄，共 %2 次</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>此处 %1 张照片中的第一张</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>偏差 %1 像素</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>没有控制点</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>未与其他照片链接</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
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
        <translation>“下一步”</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>正在等待云台的拍摄记录</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>正在等待其他拍摄记录：此记录来自 %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>正在等待可以读取的拍摄记录</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>正在等待照片</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>正在等待照片读取完毕</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>等待中：照片与各次拍摄不对应</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>等待中：%2，但收到 %1</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 张照片</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 张照片</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 次拍摄</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 次拍摄</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>等待中：有照片无法使用</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>等待中：%1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>等待中：此页面不接受这些照片</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>拍摄记录</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 张无法使用：%2</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>顺序</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>每张照片都与其拍摄对应</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>照片与各次拍摄不对应</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1，沿用上次此类照片的值</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1，输入的值</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1，来自拍摄记录：照片中没有记录</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>没有照片记录焦距：请输入 35 mm 等效焦距</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>拍摄间断</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>其他拍摄记录：%1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>此程序的输出：%1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>未采用</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>1 项需要检查</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>%1 项需要检查</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>正在检查照片...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>全部一致</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>选择拍摄记录...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>选择照片...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>替换...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>切换云台</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>显示拍摄...</translation>
    </message>
</context>
</TS>
