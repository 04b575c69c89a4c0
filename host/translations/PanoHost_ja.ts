<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>写真を読み込み中</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>RAW ファイルを現像中</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>写真の細部を検出中</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>隣り合う写真を比較中</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>写真を配置中</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>写真の明るさを比較中</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>ブラケットを結合中</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>写真を変形中</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>写真をブレンド中</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>ブラケットを露出合成中</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>画像を書き出し中</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>ページを作成中</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>拡大表示用のタイルを作成中</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1（手順 %2 / %3）</translation>
    </message>
    <message>
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%3 dpi で %1 x %2 インチ</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%3 dpi で %1 x %2 cm</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>最大 %1 x %2 ピクセル（%3）。必要な容量はディスクが最大 %4、メモリが最大 %5 です。</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>残り %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>残り %1 分</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>残り %1 時間 %2 分</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>panohost について</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost（プログラム）: GPL-3.0-or-later、ソースコード: GPL-2.0-or-later。</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>プラグインライブラリ XPanoHead: MIT。</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>次のソフトウェアを利用しています:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>ライセンス(&amp;L):</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>写真のみ必要</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>撮影記録 (*.%1) と写真が必要</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2（%3）</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>どの雲台で撮影しましたか?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>雲台を選ぶか、撮影記録と写真をこのウィンドウにドロップしてください。</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>雲台</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>雲台(&amp;H):</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>%1 の撮影記録（%2 ショット）</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1（どの雲台でも読み取れません）</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>写真 1 枚</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>写真 %1 枚</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>ファイルを調べています</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>撮影に使った雲台を選ぶと、「次へ」を押せるようになります。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>ここにファイルをドロップしてください</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>環境設定(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>panohost について(&amp;O)</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>パノラマの読み込み</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>別の撮影を読み込む(&amp;A)</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>実行できませんでした</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>ファイルを受け取れません</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>これらのファイルの中に撮影記録も写真もありません。</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>写真の名前に二重引用符または改行が含まれており、ファイルダイアログでは扱えません。名前を変更するか、コマンドラインで &quot;panohost import&quot; を使ってください。</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>ウィンドウを閉じますか?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>パノラマを作成しています。完了した分は残り、もう一度作成すると続きから再開します。</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>パノラマは保存されていません。</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>このページの写真とオプションは失われます。</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>処理に失敗しました</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>このページで処理を実行できませんでした: %1。ファイルは元のままです。もう一度お試しになるか、戻ってファイルの数を減らしてください。</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>撮影に使った雲台を選び、「次へ」を押してください。撮影記録と写真、またはそれらの入ったフォルダを、このウィンドウにドロップすることもできます。</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>パノラマの保存先を指定して、「パノラマを作成」を押してください。いつでも中止できます。完了した分は残り、もう一度作成すると続きから再開します。</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>「次へ」を押すと、ここでパノラマを作成します。プロジェクトを保存して Hugin で開くことや、記述データを JSON で保存することもできます。「戻る」で読み込みページに戻っても、写真とオプションはそのまま残ります。</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>雲台の撮影記録と、そのすべての写真を選んでください。写真の読み込みがすべて終わり、枚数が撮影記録と一致すると、「次へ」を押せるようになります。合わないところは赤い文字で示されます。一番下の行に理由が表示され、その行のボタンで直せます。</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>パノラマの作成</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>すべての写真を正しい位置に置き、1 枚の画像につなぎ合わせます。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>ログ(&amp;L)</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>フォルダを表示(&amp;D)</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>ブラウザで開く(&amp;I)</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>Hugin で開く(&amp;U)</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>設定(&amp;E)</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>サイズやファイルの種類を変えて作り直します。</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>Hugin を起動できませんでした。インストールされていますか?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>変更(&amp;C)...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>写真と同じ解像度</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>幅を 1/2 にする</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>幅を 1/4 にする（すばやい確認用）</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>露出合成: 明部と暗部の両方を見せる</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>基準の露出のみ</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>実際の光の値（HDR）</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>どのブラウザでも開けるページ(&amp;G)</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>拡大表示用のフォルダ（大きさに制限なし）(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>雲台を信頼して位置合わせを省略(&amp;T)</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>写真は雲台が記録した角度のままになります。処理が速く、写真に手がかりがない場合に適しています。</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>画像(&amp;P):</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>ブラケット(&amp;R):</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>追加の出力:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>角度:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>パノラマの保存先</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>画像 (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>写真は RAW ファイルですが、現像するプログラムがインストールされていません。libraw-bin、dcraw、darktable、rawtherapee のいずれかをインストールするか、これらの写真の JPEG を使ってください。</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>見積もっています...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>中止しています...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>開始しています...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>中止(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>パノラマを作成(&amp;M)</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>完了:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>中止しました。完了した分は残っています。「パノラマを作成」で続きから再開します。</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>%1 を開くプログラムが設定されていません。</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>メモリが足りません</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>他のプログラムを閉じるか、パノラマを小さくしてください</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>メモリ不足</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>理由は不明</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>完成したパノラマ</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>ホイール、+、-: 拡大・縮小。ドラッグ、矢印キー: 移動。ダブルクリック、0: 全体を表示。</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>ヨー %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>ピッチ %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>ロール %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>位置合わせ後のヨー %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>位置合わせ後のピッチ %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>位置合わせ後のロール %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>ずれ %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>ポイント数</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>誤差（ピクセル）</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>露出 (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>雲台が記録した値: 右向きが正、単位は度</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>雲台が記録した値: 上向きが正、単位は度</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>雲台が記録した値: 時計回りが正、単位は度</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>写真から求めた雲台の向きと記録との差</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>他の写真でも見つかった点の数</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>対応する点の間に残るずれ（中央値）</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>最初の写真の値: 1 大きくなるごとに、取り込む光は半分になります</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>この写真と共通する点を探す、隣り合う写真の数</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>撮影位置</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>デスクトップのファイルダイアログを使う(&amp;D)</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>サムネイルをデスクトップと共有(&amp;T)</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>システムの標準の場所</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>選択(&amp;S)...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>ツールのフォルダを選択</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>ツールのフォルダ(&amp;F):</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>ツール:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップに合わせる</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>ツールのフォルダ</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1: 見つかりません</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1: 見つかりました、%2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>フォルダがありません</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 はフォルダではありません。別のフォルダを選ぶか、欄を空にしてください。</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>プリントの単位(&amp;U):</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>言語の変更は、次回の起動から有効になります。</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>雲台の撮影記録と写真をここにドロップしてください</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>写真をここにドロップしてください</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>ホイールで拡大・縮小、ダブルクリックで全体を表示します。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>写真の読み込み</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>%1 枚の写真を渡しています...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>写真 %2 枚中 %1 枚</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>、毎秒 %1 枚</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1、写真 %2 枚、%3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>リストから外す(&amp;M)</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>最近の撮影</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>最近の撮影(&amp;R):</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>この撮影をリストから外す</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>リストを消去(&amp;C)</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>ファイルがなくなっています。</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>ファイルがなくなっています</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>%1 が見つかりません。接続されていないメディアにある可能性があります。リストから外しますか?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>パノラマ</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>写真が正しい位置にあるかを確認してから、パノラマを保存してください。</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>パノラマの表示</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>画像(&amp;R)</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>撮影位置(&amp;O)</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>概要(&amp;U)</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>戻って入力(&amp;E)</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>プロジェクトを保存(&amp;P)...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>記述データを保存(&amp;D)...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>表を保存(&amp;T)...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>Hugin で開く(&amp;G)</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>保存されていません</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>パノラマは保存されていません。このまま進みますか?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>保存できるものがありません。</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>ほかに 1 件が概要にあります。</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>ほかに %1 件が概要にあります。</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>プロジェクトは保存されませんでした: 焦点距離がわかりません。戻って、ページの下の行に入力してください。</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>プロジェクトの保存</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin プロジェクト (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>記述データの保存</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>記述データ (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>表の保存</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>カンマ区切りデータ (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>Hugin を起動できませんでした。インストールされていますか? 保存したプロジェクトを Hugin から開いてみてください。</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultTexts</name>
    <message>
        <source>%1 at %2</source>
        <translation>%2で%1</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>写真 1 枚</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>写真 %1 枚</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 か所の撮影位置</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 か所の撮影位置</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (各 %1 枚のブラケット)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (各 %1～%2 枚のブラケット)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1、%2、%3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>リンクなし</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>リンク 1 個</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>リンク %1 個</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1、HDR に合成</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>撮影記録</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>ブラケット内</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>まとめて扱う</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>ブラケットの写真は互いにぴったり重なるものとします。</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>しっかりした三脚での撮影に適しています。向きは全露出に共通です。</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>1 枚ずつ扱う</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>ブラケット内の写真の間でもコントロールポイントを検出します。</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>露出と露出の間にカメラが動いた可能性がある場合に適しています。</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>誤ったポイント</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>除去する</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>印を付けるだけで、写真の位置には影響しません。</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>レンズ</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>35 mm 判換算の焦点距離です。写真に写る範囲の広さを表します。</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>魚眼レンズ、焦点距離不明</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>標準レンズ、焦点距離不明</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>焦点距離がわからないと、写真をつなぎ合わせられません。</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>魚眼レンズ %1 mm</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>標準レンズ %1 mm</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>ブラケット</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>なし、HDR で出力</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>HDR が選ばれていますが、露出は各撮影位置に 1 つしかありません。</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>HDR に合成</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>すべての露出から求めた、実際の光の値を持つ画像になります。</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>その先の処理を行うプログラム向けです。全体の明暗を表示できる画面はありません。</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>通常の画像に合成</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>各露出から、暗すぎず明るすぎない部分を使います。</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>隣り合うこれらの写真の組でのみ、コントロールポイントを検出します。</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>隣り合わない写真どうしは比べません。似たような空や壁に惑わされずに済みます。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>撮影位置が 1 か所なので、隣り合う写真がありません。</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>代わりに、重なり合うすべての写真を比べます。</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>コントロールポイント</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>検出しない</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>写真は雲台が記録した位置のままになります。</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>Hugin では、コントロールポイントを手動で設定できます。</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>検出する</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>2 枚の写真に共通する点から、写真のつながり方を求めます。</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>各ブラケットの 1 つの露出で検出する</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>各ブラケットの最初の写真（基準）を使います。</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>すべての露出で検出する</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>時間はかかりますが、暗すぎる露出や明るすぎる露出があっても、より多くの点が見つかります。</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>最適化</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>省略する</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>雲台を信頼し、写真を記録された位置のままにします。</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>がたつきのない雲台に適しています。ポイントを探す時間を省けます。</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>記録をもとに行う</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>コントロールポイントに従って写真を動かします。ポイントのない写真は記録された位置のままです。</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>通常はこれを選びます。目印のない空や壁も正しい位置に残ります。</translation>
    </message>
    <message>
        <source>free</source>
        <translation>自由に行う</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>記録は探索の出発点としてのみ使います。</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>雲台が滑ってずれた場合に適しています。</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>焦点距離がわかりません: どの写真にも記録されていません。戻って、ページの下の行の「焦点距離」に入力してください。</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>焦点距離がわかりません: 撮影記録にも写真にも記録されていません。戻って、ページの下の行の「焦点距離」に入力してください。</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>レンズは魚眼として扱われますが、魚眼であることを示す写真がありません。魚眼でなければ、戻って標準レンズを選んでください。</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>写真には魚眼で撮影したと記録されていますが、レンズは標準として扱われます。魚眼であれば、戻って魚眼を選んでください。</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>それまでは、%1 か所の撮影位置がすべて 1 点に重なります。</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>%1 か所の撮影位置がすべて 1 点に重なっています。撮影記録によると、雲台は動いていません。</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>リンクされた写真が 1 組もありません。%1 mm のレンズでは、隣の写真が離れすぎています。焦点距離は正しいですか?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>撮影の中断</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 は保存されませんでした: 同じ名前のフォルダがあります。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 は保存されませんでした: フォルダ %2 がありません。移動されたか、ディスクが取り外されていませんか? 別のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 は保存されませんでした: ディスクの空き容量がありません。空きを作るか、別のディスクのフォルダを選んでください。</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 は保存されませんでした: %2 には書き込めません。ピクチャなど、ご自分のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 は保存されませんでした: 同じ名前の保護されたファイルがあります。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 は保存されませんでした: 名前が長すぎます。もっと短い名前を選んでください。</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 は保存されませんでした: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>コントロールポイントは使いません（自動検出はオフ）: 記録された位置のままにします</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>写真は記録された位置のままにします（最適化は省略）</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>写真が 1 枚しかありません: 記録された位置のままにします</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>記録された位置では、重なり合う写真がありません: 記録された位置のままにします</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>2 枚の写真に共通する点が見つかりません（空や霧しか写っていないか、この撮影記録の写真ではありません）: 記録された位置のままにします</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1。記録された位置のままにします</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>使える写真がありません: 読み込んだ後に移動していませんか?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>写真には順序「%2」より「%1」のほうが合っています: 順序「%1」で読み込んでください</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>パノラマを %1 段明るくしました: 写真の白い部分は白いままです</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%2のうち %1 枚にポイントあり、%3、ずれの中央値 %4 ピクセル</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 ポイント</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 ポイント</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> ほか %1 枚</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>%1（%2）にポイントが見つかりません: 雲台が記録した位置のままにします</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>%1（%2）にポイントが見つかりません: 雲台が記録した位置のままにします</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>レンズは %2 mm ではなく %1 mm でした</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>レンズの周辺減光は %1 % です: 補正しました</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>露出が写真の記録と最大 %1 段違います: 補正しました</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>雲台の繰り返し精度（度）: %1</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>%1 未満</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>カメラが雲台に %1 度傾いて取り付けられています</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>雲台の送り角は、指定された値の %1 倍（横）、%2 倍（縦）です</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>%1 以降、雲台が記録より %2 度右を向いています: 水平回転の軸が滑りませんでしたか?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>%1 以降、雲台が記録より %2 度左を向いています: 水平回転の軸が滑りませんでしたか?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>%1 以降、雲台が記録より %2 度上を向いています: 上下回転の軸が滑りませんでしたか?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>%1 以降、雲台が記録より %2 度下を向いています: 上下回転の軸が滑りませんでしたか?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 は、雲台の記録から %2 度ずれて撮影されています: 何かがぶつかりませんでしたか?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>残った誤差から視差が疑われます（%1 ピクセル）: 近くのものが遠くのものに対してずれています。カメラのノーダルポイントは雲台の軸上にありますか?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>読み込んだときは %1 x %2 ピクセルでしたが、今は %3 x %4 です</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>写真の特徴データをそこに保存できません: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>TMPDIR に、空き容量の多いフォルダを指定してください</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>写真の特徴データを読み戻せません: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1: %2、ブラケット %3 枚、焦点距離 %4、レンズ %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>カードからもう一度コピーしてください</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>選択 %1 枚、読み取り可能 %2 枚、焦点距離 %3、レンズ %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>写真にも撮影記録にも、焦点距離が記録されていません</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>35 mm 判換算で入力してください</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>撮影時刻のない写真があります</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 は %2 より前に撮影されています</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>時刻順を試してください</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>撮影時刻の順序は合っています</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%2 の %1 秒後（通常は %3 秒）</translation>
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
        <translation>このフォルダを作成できません</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>ディスクの空き容量がないか、上のフォルダが読み取り専用ではありませんか?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>写真が届いていないキューブの面は省きます: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>書き込めません（%1）</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>空きを作るか、別の場所を選んでください</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>フォルダ %1 がありません</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>フォルダを作成するか、別の場所を選んでください</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>フォルダです</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>削除するか、別の名前を選んでください</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>ファイルです。同じ名前のフォルダが必要です</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>panohost が作成したフォルダではありません</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>出力されたファイルが不完全です</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>ディスクの空き容量がないのではありませんか? 空きを作って、もう一度お試しください</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>空きを作って、もう一度お試しください</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>パノラマは %1 x %2 ピクセルですが、JPEG ファイルは一辺 %3 ピクセルまでです</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>名前の末尾を .tif にするか、小さいサイズを選んでください</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>このパノラマの値は実際の光の値ではありません</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>「ブラケット」で「実際の光の値（HDR）」を選んでください</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>最後に作成したパノラマではありません</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>削除して、もう一度お試しください</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>出力された %1 が不完全です</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>ディスクの空き容量がないのではありませんか?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>フォルダを公開するアドレスがわかりません</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>アドレスを入力してください（例: https://example.org/panoramas）</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1（うち %2 枚は無視）</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1、%2、ブラケット %3 枚、無視 %4 枚</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>%1 枚を無視すると、%2 枚のうち 1 枚も残りません</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>無視する枚数を減らすか、すべての写真を選んでください</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>1 ブラケット %1 枚に対して、%2しかありません</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>各撮影位置に、すべての露出の写真が必要です</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1は、1 ブラケット %2 枚の倍数ではありません</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>各撮影位置に、すべての露出の写真が必要です。先頭の余分な写真は「先頭から無視するファイル数」で除けます</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1（%2、各 %3 枚のブラケット）</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2を %1に均等に分けられません</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>足りない写真はありませんか? 先頭の余分な写真は「先頭から無視するファイル数」で除けます</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>撮影の間隔からも場所はわかりません</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>最も長い中断: %1、撮影順で %2 行目</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>最も長い中断: %1、撮影順で %2 列目</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>画像からは、どの写真が足りないか判断できません: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>%1の写真がありません（行は上から、列は左から数えます）</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>&lt;shoot&gt; に写真の記録がありません</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>古い形式の Papywizard ファイル (image/coords) ではありませんか?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>&lt;shoot&gt; に &lt;pict&gt; がありません: ショットが 1 つも記録されていません</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>最後まで終わった撮影の記録を選んでください</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>op_shoot コマンドがありません: ショットが 1 つも記録されていません</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>雲台が実行したスクリプトですか?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>この行を直すか、別のスクリプトを選んでください</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>雲台が書き出した撮影記録ですか?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>撮影記録がありません</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>名前を確認してください</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>不明な雲台「%1」%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>雲台: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>一部のショットだけの撮影記録を作成できません</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>手動で撮影してください</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>%1 を使用</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>%1 の読み込みプラグインがありません</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>別のプラグインライブラリを使ってください</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>このページでは受け付けられません</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>先にフォルダを作成してください</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>その中のファイルを選んでください</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>ご自分のファイルを選んでください</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>そこには書き込めません: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>ご自分のフォルダを選んでください</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>入力ファイルの 1 つです</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>結果には別の名前を選んでください</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>2 回指定されています</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>同じ写真は 1 回だけ選んでください</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>写真がありません</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>ファイル名を変更してください: 名前が UTF-8 ではありません</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>その中の写真を選んでください（例: %1/*.jpg）</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>写真だけを選んでください</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>読み込めません: アクセス権がありません</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>ご自分のフォルダにコピーしてください</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>足りない写真があるか、撮影が途中で終わっていませんか?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>テスト撮影の写真が混ざっていませんか?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>記録は %1ですが、選ばれたのは%2です</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>撮影時刻がないため、時刻順に並べられません</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>名前順か、選んだ順を使ってください</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>撮影記録</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>写真の EXIF データ</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>写真の EXIF データや撮影記録</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>%1からはわかりません</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>戻って入力してください（35 mm 判換算）</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>焦点距離は EXIF では %1、撮影記録では %2 です。EXIF の値を使います</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 枚の写真に焦点距離の記録がありません。ほかの写真の値を使います</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>レンズは EXIF では%1、撮影記録では%2です。EXIF に従います</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>写真に記録された焦点距離は %1 から %2 までばらついています。中央値を使います</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>プラグインのページ</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>「%1」がありません</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>ライブラリのバージョンが違っていませんか?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 は %2 から %3 の範囲にありません</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>写真ボタンを押してもファイルダイアログが開きません</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (写真 %2 枚中、ほか %1 枚)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>読み込めません（%1）%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>写真のファイルですか?</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>このページでは受け付けられません</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>写真を確認してください</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>プラグインに拒否されました</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>写真への一時的なリンク</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>一時フォルダの空き容量がないのではありませんか? TMPDIR に別のフォルダを指定してください</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>対象外</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>ショット %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>: %1 は%2（%3 %）または%4の可能性があります</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>どの写真がどのショットのものか、確実には判断できません%1。ほかの撮影の写真を外すか、順序（名前順、時刻順、選んだ順）を指定してください</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1（ショット %2）</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>カメラがショットごとに複数の写真を撮影しました: それぞれ最後の 1 枚を使います</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>2 回以上撮影されたショットがあります。使う写真: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>カメラの連番がこれらの写真の途中で最初に戻っています: 時刻順に並べます</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>写真の番号が最初に戻っています（別のカードですか?）: 時刻順に並べます</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>名前と時刻の順序が一致しません: 時刻順に並べます</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>%1 の写真がありません%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (撮影を途中で止めましたか?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>できれば撮り直してください</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 時間</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>カメラの時計は雲台の時計より %1進んでいます</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>カメラの時計は雲台の時計より %1遅れています</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>カメラの時計は 1 分間に %1 秒進みます</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>カメラの時計は 1 分間に %1 秒遅れます</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>同じ画像です: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>最初のショットより前の写真（テスト撮影?）: 除外しました</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>大きさが違います: 除外しました</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>この撮影の写真ではありません: 除外しました</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>どの写真がどのショットのものか確認できませんでした（%1）: 名前順に割り当てます</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>名前・時刻・枚数</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>名前・枚数</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>撮影記録に時刻がありません</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>写真に時刻がありません</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>写真と撮影記録の時刻が一致しません</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>%1を除外: 同じ写真の別のファイルを使います（RAW より JPEG を優先）</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>開いていません: %1が一致しています</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>どのショットにも写真がありません</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>この撮影の写真ですか?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>ほかの写真から作られた画像です</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%2の間に%1</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>、うち%1は十分近くに隣がありません</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>ショット %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>、露出 %1 / %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>ショット %1 の写真がありません（ヨー %2、ピッチ %3%4）</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>%1 の写真がありません</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>%1 x %2 ピクセルのパノラマ: %4 に約 %3（空き %5）、メモリ %6 が必要です</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>光の値の誤差は 1 パーセント未満です。ただし、どの露出でも白飛びしているかノイズのある部分を除きます</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>光の値は見るには十分ですが、測定には使えません: 写真のトーンカーブを sRGB とみなしています。RAW ファイルなら正確になります</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>このパノラマの途中の結果を入れるフォルダですが、別のものが入っています</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>その名前を変更するか、別の名前を選んでください</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>プロジェクトでは別の投影法が指定されていますが、パノラマは正距円筒図法になります</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>領域を含めるマスクは無視されます。領域を除外するマスクだけが有効です</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>中心を変えられるのは全周のパノラマだけです。全周に満たないこのパノラマはそのままです</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1: 最後まで読み込めません。カードからもう一度コピーするか、撮り直してください</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>そのうち %1 枚は RAW ファイルです</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>dcraw、dcraw_emu、darktable-cli、rawtherapee-cli のいずれかを用意するか、JPEG または TIFF を使ってください</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>写真は雲台が記録した位置のままです: 最適化は省略します</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>完了した分は %1 に残っています: 「パノラマを作成」で続きから再開します</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>写真は撮影記録の位置に置かれています: まだ位置合わせをしていません</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>Hugin プロジェクトでは引用符や改行を含むファイル名を使えず、%1 にはそのリンクも作成できません</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>ファイル名を変更してください</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>dcraw、dcraw_emu、darktable-cli、rawtherapee-cli のいずれか、または RAW ファイルを %i、TIFF を %o で表したコマンドを指定してください</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>この RAW 現像プログラムが見つかりません</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>名前は正しいですか? 対応しているもの: apt install dcraw、libraw-bin、darktable、rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>カメラが RAW ファイル %1 枚のホワイトバランスを 1 枚ごとに決めており、%2 はそれに従います: 色がばらつくことがあります。dcraw なら最初の 1 枚の設定を全部に使います</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>写真のこのコピーを作成できません</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>写真は読み込めますか? ディスクの空き容量はありますか?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>、%1 の処理</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>%1 の完全な画像が出力されませんでした</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>このカメラのファイルに対応していますか? ディスクの空き容量はありますか?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>プログラムが指定されていません</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>ファイルの出力先が指定されていません</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>%2 列目の %1 行目</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>グリッドが全周を超えています: 重なりまたは行数がこのレンズに合っていません</translation>
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
            <numerusform>ファイル %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>リンク %n 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>写真 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>撮影位置 %n か所</numerusform>
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
            <numerusform>%n ショット</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>記述データ</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>撮影位置 %3 か所の写真 %2 枚に対して、記録された向きは %1 個です</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>向きが数値ではありません</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>撮影記録を直してください</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>撮影位置 %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>写真がありません</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>写真がありません</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>このプログラムで保存した記述データ (JSON) を選んでください</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>読み込めません（写真ではない?）</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>画像をデコードできません（RAW ファイル?）</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>大きすぎてデコードできません</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>戻って入力してください</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>撮影記録にも写真にも記録されていません</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>%1 mm のレンズはありません</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>ピクセル数がわかりません</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>ほかのプログラムで開けますか? 開けなければ、この写真を外してください</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>写真のピクセル数が %1 種類あります</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>Hugin プロジェクトでは、引用符や改行を含むファイル名を使えません</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>写真 %2 枚中 %1 枚に露出の記録がありません。%3 とみなします</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>%1 バイトを超えています</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>ファイルの名前を指定してください</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>PANOHOST_PLUGIN_PATH に libXPanoHead.so を指定してください</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>ファイルまたはフォルダがありません</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>読み込みプラグイン</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>%1 にプラグインライブラリがありません</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>Qt のプラグインライブラリではありません</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>インターフェイスが「%1」です。「%2」が必要です</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>プラグインの一覧がありません</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>読み込みプラグインが含まれていません</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>書き込めません</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>同じブラケットのほかの写真と大きさが違います</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>変形済みの光の画像ではありません</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>プロジェクトのこれらの写真と、ほか %1 枚がなくなっています</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>なくなっています</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>写真を元の場所に戻すか、もう一度読み込んでください</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 は各色 %2 ビット、%3 は %4 ビットです。ブレンドするには、すべて同じでなければなりません</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>同じビット数に変換または現像してください</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>最後まで書き込まれていません</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>%1 に十分な空きがありますか?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona、%1 の処理</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>%1 の画像が作成されませんでした</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>ほかのプログラムで開ける写真ですか?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>パノラマのサイズ</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>%1 x %2 ピクセルのパノラマは作成できません</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>別のサイズを選んでください</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>作成には %1 必要ですが、空きは %2 です</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>空きを作るか、別の場所または小さいサイズを選んでください</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>作成には約 %1 必要ですが、使えるのは %2 です</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>ほかのプログラムを閉じるか、小さいサイズを選んでください</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>単独で実行してみてください</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>強制終了されました。メモリが足りなくなったのかもしれません</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>ほかのプログラムを閉じて、もう一度お試しください</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>異常終了しました（シグナル %1）</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1。メッセージ: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> 十分なら: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>パノラマの作成に必要なこのプログラムが見つかりません</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>起動できません（%1）</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>%1のあいだ何も進まなかったため、中止しました</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>コンピュータの負荷が高いか、ネットワークドライブが切断されていませんか? もう一度お試しください</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>失敗しました。メッセージはありません</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>失敗しました。メッセージ: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>ディスクの空き容量がないか、読み込むファイルが壊れていませんか?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>失敗しました。%1 のディスクにほとんど空きがありません（%2）</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>空きを作って、「パノラマを作成」をもう一度押してください。完了した分は失われません</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>ディスクの空き容量がなかったのではありませんか? ファイルを削除して、もう一度お試しください</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>8 ビット、16 ビット、浮動小数点のいずれの画像でもありません</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>途中で切れています</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>メモリに割り当てられません</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>ディスクの空き容量がないか、フォルダが読み取り専用ではありませんか?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%3 の %1（プロセス %2）</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>同じ名前のファイルがあります: そのファイルの名前を変更するか、別の名前を選んでください</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>%1 が使用中です</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>終わるまで待つか、別の名前を選んでください</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>まだ何も保存されていません。</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>保存されたファイル</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>実行できませんでした</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>%1 を %2 に保存しました</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>%1 をフォルダ内で表示</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>フォルダ %1 がなくなっています。移動されたか、ディスクが取り外されていませんか?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>フォルダを表示できるプログラムがありません。フォルダの場所: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>ショット %1: ヨー %2、ピッチ %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>写真とショットの対応が正しくありません。戻って「修正」を押してください。</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>%1 の代わりのファイル</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>写真のないショット</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>できれば、これらのショットを撮り直してください。撮り直さない場合は、これらを除いてパノラマを作成します。</translation>
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
        <translation>写真を平面図で表示</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>球面</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>カメラの位置から見回す</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>写真どうしのリンクを表示</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>すき間</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>どの写真にも写っていない部分を斜線で表示</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>撮影の全体を表示</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>焦点距離が不明なため、50 mm として写真を表示しています</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>すき間はありません</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>他の写真とリンクしていない写真: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>確認中</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>問題なし</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>この撮影について</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>この撮影についてわかっていることを表示</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>焦点距離（35 mm 判換算）</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>撮影の図: %1、%2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>写真 1 枚</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>写真 %1 枚</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>撮影位置 1 か所</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>撮影位置 %1 か所</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>撮影位置 %1 / %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>ショット %1 / %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>ここにある写真 %1 枚の最初の 1 枚</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>ずれ %1 ピクセル</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>コントロールポイントなし</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>他の写真とリンクなし</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>ずれ（ピクセル）</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>「次へ」</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>雲台の撮影記録を待っています</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>別の撮影記録を待っています: これは %1 の記録です</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>読み取れる撮影記録を待っています</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>写真を待っています</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>写真の読み込みが終わるのを待っています</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>待機中: 写真とショットの対応が正しくありません</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>待機中: %2に対して%1</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>写真 1 枚</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>写真 %1 枚</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 ショット</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 ショット</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>待機中: 使えない写真があります</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>待機中: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>待機中: このページはこれらの写真を受け付けません</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>撮影記録</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 枚が使えません: %2</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>どの写真も正しいショットに対応しています</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>写真とショットの対応が正しくありません</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1（同様の写真で前回使った値）</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1（入力した値）</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1（撮影記録の値。写真には記録なし）</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>どの写真にも記録がありません: 35 mm 判換算で入力してください</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>不足</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>撮影の中断</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>他の撮影記録: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>このプログラムの出力: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>確認事項 1 件</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>確認事項 %1 件</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>写真を調べています...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>すべて一致しています</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>撮影記録を選択...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>写真を選択...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>置き換え...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>修正</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>雲台を切り替え</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>ショットを表示...</translation>
    </message>
</context>
</TS>
