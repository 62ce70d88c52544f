<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>only one video at a time can be shared to Vimeo</translation>
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
        <translation>Back</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Loading…</translation>
    </message>
</context>
<context>
    <name>Previews</name>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 of %2: %3</translation>
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
        <translation>this is not on this device; copy it here, or open its folder in the file manager first</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>this is a folder; choose the files in it</source>
        <translation>this is a folder; choose the files in it</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>this is no ordinary file</translation>
    </message>
</context>
<context>
    <name>SheetBody</name>
    <message>
        <source>Leave them out</source>
        <translation>Leave them out</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>Title of the video</translation>
    </message>
    <message>
        <source>Title (optional)</source>
        <translation>Title (optional)</translation>
    </message>
    <message numerus="yes">
        <source>Room for %n more letter(s)</source>
        <translation>
            <numerusform>Room for %n more letter</numerusform>
            <numerusform>Room for %n more letters</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetModel</name>
    <message>
        <source>No reason was given.</source>
        <translation>No reason was given.</translation>
    </message>
    <message>
        <source>Nothing was shared. %1
What you entered is still here: press Post to try again.</source>
        <translation>Nothing was shared. %1
What you entered is still here: press Post to try again.</translation>
    </message>
</context>
<context>
    <name>SheetPage</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Post</source>
        <translation>Post</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>Handing over to the upload service…</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>New tag</source>
        <translation>New tag</translation>
    </message>
</context>
</TS>
