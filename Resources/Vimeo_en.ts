<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>No Vimeo Account</translation>
    </message>
    <message>
        <source>NO_VIMEO_ACCOUNT_MESSAGE</source>
        <translation>There is no Vimeo account on this device yet. Add one in Settings, then share again.</translation>
    </message>
    <message>
        <source>ADD_DESCRIPTION</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>ADD_TAGS</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>VIDEO_SIZE</source>
        <translation>Video Size</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL</source>
        <translation>Who Can See It</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_SMALL</source>
        <translation>Small</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_MEDIUM</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_LARGE</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_SMALL_FORMAT</source>
        <translation>Small (about %@)</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_MEDIUM_FORMAT</source>
        <translation>Medium (about %@)</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_LARGE_FORMAT</source>
        <translation>Large (about %@)</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL_PUBLIC</source>
        <translation>Everyone</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL_PRIVATE</source>
        <translation>Only Me</translation>
    </message>
</context>
</TS>
