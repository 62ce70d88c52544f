<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Flickr</name>
    <message>
        <source>FLICKR</source>
        <translation>Flickr</translation>
    </message>
    <message>
        <source>NO_SET</source>
        <translation>No album</translation>
    </message>
    <message>
        <source>PHOTOSET</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>CHOOSE_PHOTO_SET</source>
        <translation>Choose Album</translation>
    </message>
    <message>
        <source>AUDIENCE</source>
        <translation>Audience</translation>
    </message>
    <message>
        <source>PUBLIC</source>
        <translation>Public</translation>
    </message>
    <message>
        <source>FRIENDS</source>
        <translation>Friends</translation>
    </message>
    <message>
        <source>FAMILY</source>
        <translation>Family</translation>
    </message>
    <message>
        <source>ONLY_ME</source>
        <translation>Only Me</translation>
    </message>
    <message>
        <source>NO_FLICKR_ACCOUNT_TITLE</source>
        <translation>No Flickr Account</translation>
    </message>
    <message>
        <source>NO_FLICKR_ACCOUNT_MESSAGE</source>
        <translation>There is no Flickr account on this device yet. Add one in Settings, then share again.</translation>
    </message>
</context>
</TS>
