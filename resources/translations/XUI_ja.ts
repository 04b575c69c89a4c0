<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>表示できるパノラマはまだありません。</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>視線の方向</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>上を見る</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>右を向く</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>下を見る</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>左を向く</translation>
    </message>
</context>
</TS>
