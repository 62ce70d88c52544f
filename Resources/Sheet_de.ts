<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccountRow</name>
    <message>
        <source>%1 account “%2”</source>
        <translation>%1-Konto „%2“</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”</source>
        <translation>%1-Konto „%2“ entfernen</translation>
    </message>
</context>
<context>
    <name>HandingOver</name>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>Wird an den Upload-Dienst übergeben …</translation>
    </message>
</context>
<context>
    <name>KeysPanel</name>
    <message>
        <source>%1 application keys</source>
        <translation>Anwendungsschlüssel für %1</translation>
    </message>
    <message>
        <source>Register an application of your own with permission to upload, and copy its two keys here:</source>
        <translation>Registrieren Sie eine eigene Anwendung, die hochladen darf, und kopieren Sie ihre zwei Schlüssel hierher:</translation>
    </message>
    <message>
        <source>Open that page</source>
        <translation>Diese Seite öffnen</translation>
    </message>
    <message>
        <source>Asking the keyring…</source>
        <translation>Anfrage an den Schlüsselbund …</translation>
    </message>
    <message>
        <source>Consumer key</source>
        <translation>Consumer Key</translation>
    </message>
    <message>
        <source>Consumer secret</source>
        <translation>Consumer Secret</translation>
    </message>
    <message>
        <source>Consumer key: %1</source>
        <translation>Consumer Key: %1</translation>
    </message>
    <message>
        <source>The consumer secret is stored.</source>
        <translation>Das Consumer Secret ist gespeichert.</translation>
    </message>
    <message>
        <source>Store the keys</source>
        <translation>Schlüssel speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Other keys…</source>
        <translation>Andere Schlüssel …</translation>
    </message>
    <message>
        <source>Remove the keys</source>
        <translation>Schlüssel entfernen</translation>
    </message>
    <message>
        <source>The secret is in a file that only you can read, since no keyring could be used.</source>
        <translation>Das Secret liegt in einer Datei, die nur Sie lesen können, da kein Schlüsselbund verwendet werden konnte.</translation>
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
    <message>
        <source>The list could not be loaded. %1</source>
        <translation>Die Liste konnte nicht geladen werden. %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
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
    <message numerus="yes">
        <source>%n video(s)</source>
        <translation>
            <numerusform>%n Video</numerusform>
            <numerusform>%n Videos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Beginning</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 Prozent</translation>
    </message>
</context>
<context>
    <name>ServiceSettings</name>
    <message>
        <source>%1 accounts</source>
        <translation>%1-Konten</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it waits for a new sign-in.</source>
        <translation>Das %1-Konto „%2“ entfernen? Was damit bereits geteilt wurde, bleibt dort; was damit noch hochzuladen ist, wartet auf eine neue Anmeldung.</translation>
    </message>
    <message>
        <source>There is no account yet.</source>
        <translation>Es gibt noch kein Konto.</translation>
    </message>
    <message>
        <source>What you share goes out with the account that is checked.</source>
        <translation>Geteilt wird mit dem Konto, das ein Häkchen hat.</translation>
    </message>
    <message>
        <source>Remove the keys of your application at %1? Accounts that are added already stay; to add another, you need the keys again.</source>
        <translation>Die Schlüssel Ihrer Anwendung bei %1 entfernen? Bereits hinzugefügte Konten bleiben; um ein weiteres hinzuzufügen, brauchen Sie die Schlüssel wieder.</translation>
    </message>
</context>
<context>
    <name>SettingsAlert</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Uploads</source>
        <translation>Uploads</translation>
    </message>
    <message>
        <source>Photos at a time</source>
        <translation>Gleichzeitige Foto-Uploads</translation>
    </message>
    <message>
        <source>Videos at a time</source>
        <translation>Gleichzeitige Video-Uploads</translation>
    </message>
    <message>
        <source>Upload over the cellular network</source>
        <translation>Über das Mobilfunknetz hochladen</translation>
    </message>
    <message>
        <source>Largest edge of newly encoded pictures</source>
        <translation>Längste Kante neu kodierter Bilder</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>%L1 pixels</source>
        <translation>%L1 Pixel</translation>
    </message>
    <message>
        <source>JPEG, PNG and GIF files always go out as they are. Other pictures, and those sent without metadata, are newly encoded.</source>
        <translation>JPEG-, PNG- und GIF-Dateien werden unverändert hochgeladen. Andere Bilder und solche ohne Metadaten werden neu kodiert.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>this is not on this device; copy it here, or open its folder in the file manager first</source>
        <translation>die Datei liegt nicht auf diesem Gerät; kopieren Sie sie hierher oder öffnen Sie zuerst ihren Ordner im Dateimanager</translation>
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
        <source>Title (optional)</source>
        <translation>Titel (optional)</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>That does not fit</source>
        <translation>Das passt nicht hinein</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Kein Platz mehr</translation>
    </message>
    <message>
        <source>Almost full</source>
        <translation>Fast kein Platz mehr</translation>
    </message>
    <message numerus="yes">
        <source>room for %n more byte(s)</source>
        <translation>
            <numerusform>noch Platz für %n Byte</numerusform>
            <numerusform>noch Platz für %n Byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetNotices</name>
    <message>
        <source>Leave them out</source>
        <translation>Diese weglassen</translation>
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
</context>
<context>
    <name>SignInPanel</name>
    <message>
        <source>The account “%1” is ready.</source>
        <translation>Das Konto „%1“ ist bereit.</translation>
    </message>
    <message>
        <source>Add an account…</source>
        <translation>Konto hinzufügen …</translation>
    </message>
    <message>
        <source>Add with a code…</source>
        <translation>Mit einem Code hinzufügen …</translation>
    </message>
    <message>
        <source>For a browser on another device: it shows a code that you type here.</source>
        <translation>Für einen Browser auf einem anderen Gerät: Er zeigt einen Code, den Sie hier eingeben.</translation>
    </message>
    <message>
        <source>To sign in, Korvane first needs the keys of your own application, below.</source>
        <translation>Zum Anmelden braucht Korvane zuerst die Schlüssel Ihrer eigenen Anwendung (unten).</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Anfrage an %1 …</translation>
    </message>
    <message>
        <source>Storing the account…</source>
        <translation>Das Konto wird gespeichert …</translation>
    </message>
    <message>
        <source>Open this address, also on another device, allow Korvane to upload, and type the code that is shown:</source>
        <translation>Öffnen Sie diese Adresse, auch auf einem anderen Gerät, erlauben Sie Korvane das Hochladen und geben Sie den angezeigten Code ein:</translation>
    </message>
    <message>
        <source>Allow Korvane to upload in the browser that has opened. If none has, open this address on this device:</source>
        <translation>Erlauben Sie Korvane das Hochladen im geöffneten Browser. Wenn sich keiner geöffnet hat, öffnen Sie diese Adresse auf diesem Gerät:</translation>
    </message>
    <message>
        <source>Address of the sign-in page</source>
        <translation>Adresse der Anmeldeseite</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Use this code</source>
        <translation>Diesen Code verwenden</translation>
    </message>
    <message>
        <source>Open the page again</source>
        <translation>Seite noch einmal öffnen</translation>
    </message>
    <message>
        <source>Cancel the sign-in</source>
        <translation>Anmeldung abbrechen</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
</context>
<context>
    <name>UploadRow</name>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Retry “%1”</source>
        <translation>„%1“ wiederholen</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
</context>
<context>
    <name>UploadWords</name>
    <message>
        <source>Waiting for an account</source>
        <translation>Wartet auf ein Konto</translation>
    </message>
    <message>
        <source>Sign in on Korvane's settings page.</source>
        <translation>Melden Sie sich in den Einstellungen von Korvane an.</translation>
    </message>
    <message>
        <source>Waiting for the network</source>
        <translation>Wartet auf das Netz</translation>
    </message>
    <message>
        <source>Waiting for the next try</source>
        <translation>Wartet auf den nächsten Versuch</translation>
    </message>
    <message>
        <source>%1, at the latest %2</source>
        <translation>%1, spätestens %2</translation>
    </message>
    <message>
        <source>Video without a title</source>
        <translation>Video ohne Titel</translation>
    </message>
    <message>
        <source>Photo without a title</source>
        <translation>Foto ohne Titel</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Wird hochgeladen</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Geteilt</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Queued</source>
        <translation>In der Warteschlange</translation>
    </message>
    <message>
        <source>No reason was given.</source>
        <translation>Es wurde kein Grund genannt.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>noch wenige Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>about %n s left</source>
        <translation>
            <numerusform>noch etwa %n s</numerusform>
            <numerusform>noch etwa %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n min left</source>
        <translation>
            <numerusform>noch etwa %n min</numerusform>
            <numerusform>noch etwa %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n h left</source>
        <translation>
            <numerusform>noch etwa %n h</numerusform>
            <numerusform>noch etwa %n h</numerusform>
        </translation>
    </message>
    <message>
        <source>more than a day left</source>
        <translation>noch mehr als ein Tag</translation>
    </message>
    <message>
        <source>Nobody knows whether “%1” has arrived. Look on %2 first. Removed here, it is not tried again.</source>
        <translation>Es ist nicht bekannt, ob „%1“ angekommen ist. Sehen Sie zuerst auf %2 nach. Wenn Sie es hier entfernen, wird es nicht erneut versucht.</translation>
    </message>
    <message>
        <source>“%1” has not arrived on %2 yet. Removed here, it is not uploaded.</source>
        <translation>„%1“ ist noch nicht auf %2 angekommen. Wenn Sie es hier entfernen, wird es nicht hochgeladen.</translation>
    </message>
</context>
<context>
    <name>UploadsHead</name>
    <message>
        <source>Asking the upload service…</source>
        <translation>Anfrage an den Upload-Dienst …</translation>
    </message>
    <message>
        <source>The upload service does not answer just now. Uploads it has taken over are not lost.</source>
        <translation>Der Upload-Dienst antwortet gerade nicht. Uploads, die er übernommen hat, sind nicht verloren.</translation>
    </message>
    <message>
        <source>The upload service has ended, since there is nothing left to upload.</source>
        <translation>Der Upload-Dienst hat sich beendet, da nichts mehr hochzuladen ist.</translation>
    </message>
    <message>
        <source>The upload service cannot be reached. It is asked again by and by.</source>
        <translation>Der Upload-Dienst ist nicht erreichbar. Es wird regelmäßig erneut versucht.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Under way</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Geteilt</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Uploads are paused.</source>
        <translation>Das Hochladen ist angehalten.</translation>
    </message>
    <message>
        <source>Resume uploads</source>
        <translation>Hochladen fortsetzen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Clear what is shared</source>
        <translation>Geteilte aus der Liste entfernen</translation>
    </message>
    <message>
        <source>There is nothing of this kind.</source>
        <translation>Keine Einträge</translation>
    </message>
    <message>
        <source>Nothing is being uploaded. What you share shows up here.</source>
        <translation>Es wird nichts hochgeladen. Was Sie teilen, erscheint hier.</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Alle wiederholen</translation>
    </message>
</context>
<context>
    <name>UploadsPage</name>
    <message>
        <source>Uploads</source>
        <translation>Uploads</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>korvane::AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>auf Vimeo kann nur ein Video auf einmal geteilt werden</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more file(s)</source>
        <translation>
            <numerusform>und %n weitere Datei</numerusform>
            <numerusform>und %n weitere Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>korvane::ServiceAccess</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>korvane::Settings</name>
    <message>
        <source>The setting could not be written. It holds until this window is closed.</source>
        <translation>Die Einstellung konnte nicht gespeichert werden. Sie gilt, bis dieses Fenster geschlossen wird.</translation>
    </message>
</context>
<context>
    <name>korvane::SheetModel</name>
    <message>
        <source>No reason was given.</source>
        <translation>Es wurde kein Grund genannt.</translation>
    </message>
    <message>
        <source>Nothing was shared. %1
What you entered is still here: press Post to try again.</source>
        <translation>Es wurde nichts geteilt. %1
Ihre Eingaben sind noch da: Mit „Posten“ versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Another account is in use now. Look at what is chosen here, then press Post again.</source>
        <translation>Jetzt wird ein anderes Konto verwendet. Prüfen Sie, was hier gewählt ist, und drücken Sie dann noch einmal „Posten“.</translation>
    </message>
</context>
<context>
    <name>korvane::SignInModel</name>
    <message>
        <source>The browser did not open. Open the address below yourself.</source>
        <translation>Der Browser konnte nicht geöffnet werden. Öffnen Sie die Adresse unten selbst.</translation>
    </message>
</context>
</TS>
