<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zz">
<context>
    <name>tst_manager</name>
    <message>
        <source>Qt file</source>
        <translation>third candidate</translation>
    </message>
</context>
</TS>
