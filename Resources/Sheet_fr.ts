<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>une seule vidéo à la fois peut être partagée sur Vimeo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
</context>
<context>
    <name>OptionLayer</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
</context>
<context>
    <name>Previews</name>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 sur %2 : %3</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>this is not on this device; copy it here, or open its folder in the file manager first</source>
        <translation>ceci n’est pas sur cet appareil ; copiez-le ici ou ouvrez d’abord son dossier dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>this is a folder; choose the files in it</source>
        <translation>c’est un dossier ; choisissez les fichiers qu’il contient</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>SheetBody</name>
    <message>
        <source>Leave them out</source>
        <translation>Les laisser de côté</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Titre de la vidéo</translation>
    </message>
    <message>
        <source>Title (optional)</source>
        <translation>Titre (facultatif)</translation>
    </message>
    <message numerus="yes">
        <source>Room for %n more letter(s)</source>
        <translation>
            <numerusform>Encore %n lettre possible</numerusform>
            <numerusform>Encore %n lettres possibles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetModel</name>
    <message>
        <source>No reason was given.</source>
        <translation>Aucune raison n’a été donnée.</translation>
    </message>
    <message>
        <source>Nothing was shared. %1
What you entered is still here: press Post to try again.</source>
        <translation>Rien n’a été partagé. %1
Votre saisie est toujours là : appuyez sur « Publier » pour réessayer.</translation>
    </message>
</context>
<context>
    <name>SheetPage</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Post</source>
        <translation>Publier</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>Remise au service d’envoi…</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>New tag</source>
        <translation>Nouveau tag</translation>
    </message>
</context>
</TS>
