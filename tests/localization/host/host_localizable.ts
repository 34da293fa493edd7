<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Save</source>
        <translation>Save (host table)</translation>
    </message>
</context>
</TS>
