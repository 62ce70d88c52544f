<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Vimeo</name>
    <message>
        <source>VIMEO</source>
        <translation>Vimeo</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>NO_VIMEO_ACCOUNT_TITLE</source>
        <translation>Kein Vimeo-Konto</translation>
    </message>
    <message>
        <source>NO_VIMEO_ACCOUNT_MESSAGE</source>
        <translation>Auf diesem Gerät ist noch kein Vimeo-Konto eingerichtet. Fügen Sie in den Einstellungen eines hinzu und teilen Sie dann erneut.</translation>
    </message>
    <message>
        <source>ADD_DESCRIPTION</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>ADD_TAGS</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>VIDEO_SIZE</source>
        <translation>Videogröße</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL</source>
        <translation>Sichtbar für</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_SMALL</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_MEDIUM</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_LARGE</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_SMALL_FORMAT</source>
        <translation>Klein (ca. %@)</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_MEDIUM_FORMAT</source>
        <translation>Mittel (ca. %@)</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_LARGE_FORMAT</source>
        <translation>Groß (ca. %@)</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL_PUBLIC</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL_PRIVATE</source>
        <translation>Nur ich</translation>
    </message>
</context>
</TS>
