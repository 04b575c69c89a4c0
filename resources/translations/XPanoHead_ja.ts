<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>Papywizard の XML ではブラケット撮影が使われていますが、画像の枚数が 1 ブラケットあたりの枚数の倍数ではありません。</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>プリセットファイルと画像（またはその一方）の選択</translation>
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
        <translation>なし</translation>
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
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard パノラマ雲台制御ソフトウェア</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Papywizard の読み込み</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; は Merlin/Orion パノラマ雲台を動かすためのフリーのプロジェクトです。XML ファイル形式は公開されており、さまざまな電動パノラマ雲台で使われています。</translation>
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
        <translation>なし</translation>
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
        <source>VRDrive2 import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This importer is not available yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
