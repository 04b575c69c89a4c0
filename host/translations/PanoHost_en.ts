<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PanoHost::Said</name>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n column</numerusform>
            <numerusform>%n columns</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n link</numerusform>
            <numerusform>%n links</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n position</numerusform>
            <numerusform>%n positions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n row</numerusform>
            <numerusform>%n rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n shot</numerusform>
            <numerusform>%n shots</numerusform>
        </translation>
    </message>
</context>
</TS>
