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
        <source>or choose a smaller size</source>
        <translation>或选择较小的尺寸</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>请选择较小的尺寸</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>请选择其他尺寸</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>RAW 文件可使其准确</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>请再次点击“制作全景图”</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>请返回并输入</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>点击“制作全景图”可从此处继续</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>最大 %1 x %2 像素；最多占用 %3 磁盘空间和 %4 内存。</translation>
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
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>导入全景图</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
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
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>首选项(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>关于 panohost(&amp;O)</translation>
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
        <source>Language and thumbnails change with the next start.</source>
        <translation>语言和缩略图的更改在下次启动后生效。</translation>
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
