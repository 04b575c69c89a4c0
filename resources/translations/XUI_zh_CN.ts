<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>preview</name>
    <message>
        <source>There is no panorama to show yet.</source>
        <translation>还没有可显示的全景图。</translation>
    </message>
</context>
<context>
    <name>rotator</name>
    <message>
        <source>Viewing direction</source>
        <translation>观看方向</translation>
    </message>
    <message>
        <source>Look up</source>
        <translation>向上看</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>向右转</translation>
    </message>
    <message>
        <source>Look down</source>
        <translation>向下看</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>向左转</translation>
    </message>
</context>
</TS>
