<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>還沒有可顯示的全景圖。</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>觀看方向</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>向上看</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>向右轉</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>向下看</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>向左轉</translation>
    </message>
</context>
</TS>
