<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>LMMediaFormatPopup</name>
    <message>
        <source>DB_C_SysLanguage</source>
        <translation>pl</translation>
    </message>
</context>
</TS>
