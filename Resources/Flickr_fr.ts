<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Flickr</name>
    <message>
        <source>FLICKR</source>
        <translation>Flickr</translation>
    </message>
    <message>
        <source>NO_SET</source>
        <translation>Aucun album</translation>
    </message>
    <message>
        <source>PHOTOSET</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>CHOOSE_PHOTO_SET</source>
        <translation>Choisir l’album</translation>
    </message>
    <message>
        <source>AUDIENCE</source>
        <translation>Visible par</translation>
    </message>
    <message>
        <source>PUBLIC</source>
        <translation>Tout le monde</translation>
    </message>
    <message>
        <source>FRIENDS</source>
        <translation>Amis</translation>
    </message>
    <message>
        <source>FAMILY</source>
        <translation>Famille</translation>
    </message>
    <message>
        <source>ONLY_ME</source>
        <translation>Moi uniquement</translation>
    </message>
    <message>
        <source>NO_FLICKR_ACCOUNT_TITLE</source>
        <translation>Aucun compte Flickr</translation>
    </message>
    <message>
        <source>NO_FLICKR_ACCOUNT_MESSAGE</source>
        <translation>Aucun compte Flickr n’est encore configuré sur cet appareil. Ajoutez-en un dans Réglages, puis partagez à nouveau.</translation>
    </message>
</context>
</TS>
