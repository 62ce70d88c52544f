<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Vimeo</name>
    <message>
        <source>VIMEO</source>
        <translation>Vimeo</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>NO_VIMEO_ACCOUNT_TITLE</source>
        <translation>Aucun compte Vimeo</translation>
    </message>
    <message>
        <source>NO_VIMEO_ACCOUNT_MESSAGE</source>
        <translation>Aucun compte Vimeo n’est encore configuré sur cet appareil. Ajoutez-en un dans Réglages, puis partagez à nouveau.</translation>
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
        <translation>Taille de la vidéo</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL</source>
        <translation>Visible par</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_SMALL</source>
        <translation>Petite</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_MEDIUM</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_LARGE</source>
        <translation>Grande</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_SMALL_FORMAT</source>
        <translation>Petite (environ %@)</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_MEDIUM_FORMAT</source>
        <translation>Moyenne (environ %@)</translation>
    </message>
    <message>
        <source>VIDEO_SIZE_LARGE_FORMAT</source>
        <translation>Grande (environ %@)</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL_PUBLIC</source>
        <translation>Tout le monde</translation>
    </message>
    <message>
        <source>PRVACY_LEVEL_PRIVATE</source>
        <translation>Moi uniquement</translation>
    </message>
</context>
</TS>
