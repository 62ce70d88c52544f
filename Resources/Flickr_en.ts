<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Flickr</name>
    <message>
        <source>NO_SET</source>
        <translation>No album</translation>
    </message>
</context>
</TS>
