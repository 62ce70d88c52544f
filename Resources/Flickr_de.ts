<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Flickr</name>
    <message>
        <source>FLICKR</source>
        <translation>Flickr</translation>
    </message>
    <message>
        <source>NO_SET</source>
        <translation>Kein Album</translation>
    </message>
    <message>
        <source>PHOTOSET</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>CHOOSE_PHOTO_SET</source>
        <translation>Album wählen</translation>
    </message>
    <message>
        <source>AUDIENCE</source>
        <translation>Sichtbar für</translation>
    </message>
    <message>
        <source>PUBLIC</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>FRIENDS</source>
        <translation>Freunde</translation>
    </message>
    <message>
        <source>FAMILY</source>
        <translation>Familie</translation>
    </message>
    <message>
        <source>ONLY_ME</source>
        <translation>Nur ich</translation>
    </message>
    <message>
        <source>NO_FLICKR_ACCOUNT_TITLE</source>
        <translation>Kein Flickr-Konto</translation>
    </message>
    <message>
        <source>NO_FLICKR_ACCOUNT_MESSAGE</source>
        <translation>Auf diesem Gerät ist noch kein Flickr-Konto eingerichtet. Fügen Sie in den Einstellungen eines hinzu und teilen Sie dann erneut.</translation>
    </message>
</context>
</TS>
