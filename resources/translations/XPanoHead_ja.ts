<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>ファイルの読み取りエラー: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>撮影記録ファイルと画像（またはその一方）の選択</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>これだけ多くの画像を処理するメモリが足りません。他のプログラムを閉じてから、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Clauss パノラマ雲台</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Clauss パノラマ雲台からの読み込み</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; は、パノラマ撮影と VR 用途のための専用機材を提供しています。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>スクリプトファイル:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>撮影位置の数:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Theta:</source>
        <translation>シータ:</translation>
    </message>
    <message>
        <source>Phi:</source>
        <translation>ファイ:</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Y 座標を反転</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>画像の枚数:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを除去</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>ガイド付き最適化</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>枚の画像: </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>これだけ多くの画像を処理するメモリが足りません。他のプログラムを閉じてから、もう一度お試しください。</translation>
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
        <translation>Gigapan パノラマの読み込み</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; では、世界中のすばらしいギガピクセル超のパノラマをアップロード、共有、閲覧できます。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>画像:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>画像の枚数</translation>
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
        <translation>先頭から無視するファイル数 </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>1 か所あたりの画像数（ブラケット）</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>撮影の配置</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>列（既定）</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>列: 左へ</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>行: 下へ</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>行: 上へ</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>撮影の設定</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>360° パノラマとして扱う</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>重なり</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>リンクを検出する範囲:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>スタックの全レベル</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>スタック内:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>固定リンクを使う</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>検出オプション</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを除去</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
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
        <translation>Papywizard の XML ではブラケット撮影が使われていますが、画像の枚数が 1 ブラケットあたりの枚数の倍数ではありません。</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>撮影記録ファイルと画像（またはその一方）の選択</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>すべてのファイル (*.*);;XML ファイル (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML でブラケット撮影が使われています。画像の枚数はその数の倍数である必要があります</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>XML ファイルの枚数と一致しません</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>EXIF と XML で焦点距離が異なります</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF と XML でレンズの種類が異なります</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>これだけ多くの画像を処理するメモリが足りません。他のプログラムを閉じてから、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard パノラマ雲台制御ソフトウェア</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Papywizard からの読み込み</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; は Merlin/Orion パノラマ雲台を動かすためのフリーのプロジェクトです。XML 形式は公開されており、多くの電動パノラマ雲台で使われています。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>画像の枚数:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>ヨー:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>ピッチ:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>ブラケット:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML の焦点距離:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>画像の焦点距離:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>撮影の設定</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Y 座標を反転</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>焦点距離:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>レンズの種類:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>XML の情報を使う</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>画像の情報を使う</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>リンクを検出する範囲:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>スタックの全レベル</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>スタック内:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>固定リンクを使う</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>検出オプション</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを除去</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>記録された位置を使う</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>ヘッダーの詳細</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>コメント:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
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
        <translation>Papywizard の XML ではブラケット撮影が使われていますが、画像の枚数が 1 ブラケットあたりの枚数の倍数ではありません。</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>撮影記録ファイルと画像（またはその一方）の選択</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>すべてのファイル (*.*);;XML ファイル (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML でブラケット撮影が使われています。画像の枚数はその数の倍数である必要があります</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>XML ファイルの枚数と一致しません</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>EXIF と XML で焦点距離が異なります</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>EXIF と XML でレンズの種類が異なります</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>これだけ多くの画像を処理するメモリが足りません。他のプログラムを閉じてから、もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>VR Drive II 読み込みプラグイン</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; プラグインは、光を忠実に再現し Weavix を手軽に使えるよう全パラメーターを設定した、自動 HDR ワークフローを実現します。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>画像:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>画像の枚数:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>利用不可</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>画像の焦点距離:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>ヨー:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>ピッチ:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>ブラケット:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>XML の焦点距離:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>出力:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 ビット / 16 ビット トーンマップ</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>32 ビット HDR 放射輝度</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>撮影の設定</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Y 座標を反転</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>右に回転</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>焦点距離:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>レンズの種類:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>XML の情報を使う</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>画像の情報を使う</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>スタック</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>リンクを検出する範囲:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>基準レベル</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>スタックの全レベル</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>スタック内:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>固定リンクを使う</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>コントロールポイントを検出</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>検出オプション</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>自動検出</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>誤ったリンクを除去</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>最適化を省略</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>記録された位置を使う</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
</context>
</TS>
