<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>nur ein Video auf einmal kann auf Vimeo geteilt werden</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen …</translation>
    </message>
</context>
<context>
    <name>Previews</name>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>this is not on this device; copy it here, or open its folder in the file manager first</source>
        <translation>das liegt nicht auf diesem Gerät; kopieren Sie es hierher oder öffnen Sie zuerst seinen Ordner im Dateimanager</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>this is a folder; choose the files in it</source>
        <translation>das ist ein Ordner; wählen Sie die Dateien darin</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>SheetBody</name>
    <message>
        <source>Leave them out</source>
        <translation>Diese weglassen</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Titel des Videos</translation>
    </message>
    <message>
        <source>Title (optional)</source>
        <translation>Titel (freiwillig)</translation>
    </message>
    <message numerus="yes">
        <source>Room for %n more letter(s)</source>
        <translation>
            <numerusform>Platz für noch %n Buchstaben</numerusform>
            <numerusform>Platz für noch %n Buchstaben</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetModel</name>
    <message>
        <source>No reason was given.</source>
        <translation>Ein Grund wurde nicht genannt.</translation>
    </message>
    <message>
        <source>Nothing was shared. %1
What you entered is still here: press Post to try again.</source>
        <translation>Es wurde nichts geteilt. %1
Ihre Eingaben sind noch da: Mit „Posten“ versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>SheetPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Post</source>
        <translation>Posten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>Wird an den Upload-Dienst übergeben …</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>New tag</source>
        <translation>Neues Tag</translation>
    </message>
</context>
</TS>
