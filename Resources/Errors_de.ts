<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>Flickr's answer is not understood.</source>
        <translation>Die Antwort von Flickr ist nicht verständlich.</translation>
    </message>
    <message>
        <source>Flickr says: %1</source>
        <translation>Flickr meldet: %1</translation>
    </message>
    <message>
        <source>The upload service cannot be watched: %1</source>
        <translation>Der Upload-Dienst kann nicht beobachtet werden: %1</translation>
    </message>
    <message>
        <source>“%1” ends too early: it is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made.</source>
        <translation>„%1“ endet zu früh: Die Datei ist beschädigt oder unvollständig. Prüfen Sie, ob sie sich bis zum Ende abspielen lässt, oder kopieren Sie sie noch einmal vom Original.</translation>
    </message>
    <message>
        <source>What ffmpeg says of “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>Die Ausgabe von ffmpeg zu „%1“ ist nicht verständlich. Prüfen Sie das Paket „ffmpeg“.</translation>
    </message>
    <message>
        <source>Only MP4 files can be exported.</source>
        <translation>Es können nur MP4-Dateien exportiert werden.</translation>
    </message>
    <message>
        <source>There is no file to export “%1” to.</source>
        <translation>Es gibt keine Datei, in die „%1“ exportiert werden kann.</translation>
    </message>
    <message>
        <source>Another export writes to %1. Try again.</source>
        <translation>Ein anderer Export schreibt nach %1. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>“%1” was changed while it was exported. Try again when it is complete.</source>
        <translation>„%1“ wurde während des Exports geändert. Versuchen Sie es erneut, wenn die Datei vollständig ist.</translation>
    </message>
    <message>
        <source>There is not enough disk space to export “%1”. Free some space and try again.</source>
        <translation>Zum Exportieren von „%1“ reicht der Speicherplatz nicht. Schaffen Sie Platz und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>the export was cancelled</source>
        <translation>der Export wurde abgebrochen</translation>
    </message>
    <message>
        <source>“%1” is not a video that can be read: it is damaged, incomplete or of an unknown format. Check that it plays, or choose another file.</source>
        <translation>„%1“ ist kein lesbares Video: Die Datei ist beschädigt, unvollständig oder hat ein unbekanntes Format. Prüfen Sie, ob sie sich abspielen lässt, oder wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>“%1” could not be looked at (%2). Try again.</source>
        <translation>„%1“ konnte nicht untersucht werden (%2). Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The answer of ffprobe about “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>Die Antwort von ffprobe zu „%1“ ist nicht verständlich. Prüfen Sie das Paket „ffmpeg“.</translation>
    </message>
    <message>
        <source>There are no pictures in “%1”. Choose a file with a video in it.</source>
        <translation>„%1“ enthält keine Bilder. Wählen Sie eine Datei mit einem Video.</translation>
    </message>
    <message>
        <source>“%1” is 0 seconds long. Choose another file.</source>
        <translation>„%1“ ist 0 Sekunden lang. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>Videos cannot be read without the programs ffmpeg and ffprobe. Install the package “ffmpeg” and try again.</source>
        <translation>Ohne die Programme ffmpeg und ffprobe können Videos nicht gelesen werden. Installieren Sie das Paket „ffmpeg“ und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The program for videos cannot be started: %1</source>
        <translation>Das Programm für Videos kann nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>The export of “%1” broke off (%2). Try again.</source>
        <translation>Der Export von „%1“ ist abgebrochen (%2). Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The installed ffmpeg cannot write H.264 and AAC. Install a package “ffmpeg” with libx264 and try again.</source>
        <translation>Das installierte ffmpeg kann H.264 und AAC nicht schreiben. Installieren Sie ein Paket „ffmpeg“ mit libx264 und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>“%1” is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made (%2).</source>
        <translation>„%1“ ist beschädigt oder unvollständig. Prüfen Sie, ob die Datei sich bis zum Ende abspielen lässt, oder kopieren Sie sie noch einmal vom Original (%2).</translation>
    </message>
    <message>
        <source>Accounts of type "%1" cannot be stored.</source>
        <translation>Konten der Art „%1“ können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The user name is empty or holds control characters.</source>
        <translation>Der Benutzername ist leer oder enthält Steuerzeichen.</translation>
    </message>
    <message>
        <source>A part of the credential is empty or holds control characters.</source>
        <translation>Ein Teil der Zugangsdaten ist leer oder enthält Steuerzeichen.</translation>
    </message>
    <message>
        <source>"accounts" is not a list</source>
        <translation>„accounts“ ist keine Liste</translation>
    </message>
    <message>
        <source>The list of accounts was damaged and is kept as %1. Sign in again.</source>
        <translation>Die Liste der Konten war beschädigt und wird als %1 aufbewahrt. Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>No account in %1 is understood. Mend the file, or sign in again.</source>
        <translation>Kein Konto in %1 ist lesbar. Berichtigen Sie die Datei, oder melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>There is no account "%1".</source>
        <translation>Es gibt kein Konto „%1“.</translation>
    </message>
    <message>
        <source>The credential file cannot be used: %1.</source>
        <translation>Die Datei mit den Zugangsdaten kann nicht verwendet werden: %1.</translation>
    </message>
    <message>
        <source>"%1" is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>"%1" is not a text</source>
        <translation>„%1“ ist kein Text</translation>
    </message>
    <message>
        <source>"%1" is empty</source>
        <translation>„%1“ ist leer</translation>
    </message>
    <message>
        <source>"%1" holds control characters, such as a line break</source>
        <translation>„%1“ enthält Steuerzeichen, etwa einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>it is larger than %1 KB</source>
        <translation>sie ist größer als %1 KB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>sie enthält kein JSON-Objekt</translation>
    </message>
    <message>
        <source>The application's key is empty, too long, or holds spaces or special characters.</source>
        <translation>Der Schlüssel der Anwendung ist leer, zu lang oder enthält Leer- oder Sonderzeichen.</translation>
    </message>
    <message>
        <source>The application's secret is empty, too long, or holds spaces or special characters.</source>
        <translation>Das Secret der Anwendung ist leer, zu lang oder enthält Leer- oder Sonderzeichen.</translation>
    </message>
    <message>
        <source>There is no such web service.</source>
        <translation>Diesen Webdienst gibt es nicht.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Zu lang</translation>
    </message>
    <message>
        <source>This request is too long.</source>
        <translation>Diese Anfrage ist zu lang.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>There is nothing here.</source>
        <translation>Hier gibt es nichts.</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>Nicht möglich</translation>
    </message>
    <message>
        <source>This page can only be opened.</source>
        <translation>Diese Seite kann nur aufgerufen werden.</translation>
    </message>
    <message>
        <source>Another sign-in</source>
        <translation>Eine andere Anmeldung</translation>
    </message>
    <message>
        <source>This page belongs to another sign-in. Go back to Korvane.</source>
        <translation>Diese Seite gehört zu einer anderen Anmeldung. Kehren Sie zu Korvane zurück.</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Nicht angemeldet</translation>
    </message>
    <message>
        <source>You can close this page and go back to Korvane.</source>
        <translation>Sie können diese Seite schließen und zu Korvane zurückkehren.</translation>
    </message>
    <message>
        <source>Thank you</source>
        <translation>Vielen Dank</translation>
    </message>
    <message>
        <source>Add the account again.</source>
        <translation>Fügen Sie das Konto erneut hinzu.</translation>
    </message>
    <message>
        <source>Enter the keys again.</source>
        <translation>Geben Sie die Schlüssel erneut ein.</translation>
    </message>
    <message>
        <source>The stored credential has no usable "%1". %2</source>
        <translation>Die gespeicherten Zugangsdaten enthalten kein brauchbares „%1“. %2</translation>
    </message>
    <message>
        <source>It is in the keyring, which KORVANE_SECRETS=file forbids to use. %1</source>
        <translation>Die Zugangsdaten liegen im Schlüsselbund, dessen Verwendung KORVANE_SECRETS=file untersagt. %1</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it and try again.</source>
        <translation>Der Schlüsselbund ist gesperrt. Entsperren Sie ihn und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 belongs to another user. Move it away, then add the account again.</source>
        <translation>%1 gehört einem anderen Benutzer. Verschieben Sie die Datei an einen anderen Ort und fügen Sie das Konto dann erneut hinzu.</translation>
    </message>
    <message>
        <source>The credential was not stored: the keyring does not answer. Try again, log out and in again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>Die Zugangsdaten wurden nicht gespeichert: Der Schlüsselbund antwortet nicht. Versuchen Sie es erneut, melden Sie sich am Computer ab und wieder an, oder setzen Sie KORVANE_SECRETS=file, um Zugangsdaten in einer Datei aufzubewahren.</translation>
    </message>
    <message>
        <source>The keyring does not answer. Try again, or log out and in again.</source>
        <translation>Der Schlüsselbund antwortet nicht. Versuchen Sie es erneut, oder melden Sie sich am Computer ab und wieder an.</translation>
    </message>
    <message>
        <source>The keyring does not hold it any more. %1</source>
        <translation>Der Schlüsselbund enthält die Zugangsdaten nicht mehr. %1</translation>
    </message>
    <message>
        <source>The keyring cannot be used: %1.</source>
        <translation>Der Schlüsselbund kann nicht verwendet werden: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold it. %2</source>
        <translation>%1 enthält die Zugangsdaten nicht. %2</translation>
    </message>
    <message>
        <source>The credential was not stored: %1. Unlock the keyring and try again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>Die Zugangsdaten wurden nicht gespeichert: %1. Entsperren Sie den Schlüsselbund und versuchen Sie es erneut, oder setzen Sie KORVANE_SECRETS=file, um Zugangsdaten in einer Datei aufzubewahren.</translation>
    </message>
    <message>
        <source>the keyring gave no reason</source>
        <translation>der Schlüsselbund nannte keinen Grund</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>es gibt keinen Sitzungsbus</translation>
    </message>
    <message>
        <source>the keyring did not answer in time</source>
        <translation>der Schlüsselbund hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>the keyring does not hold it</source>
        <translation>der Schlüsselbund enthält sie nicht</translation>
    </message>
    <message>
        <source>the keyring is locked</source>
        <translation>der Schlüsselbund ist gesperrt</translation>
    </message>
    <message>
        <source>the keyring gave no text</source>
        <translation>der Schlüsselbund hat keinen Text geliefert</translation>
    </message>
    <message>
        <source>there is no default keyring</source>
        <translation>es gibt keinen Standard-Schlüsselbund</translation>
    </message>
    <message>
        <source>Korvane cannot wait for the browser here (%1). Sign in with a typed code instead.</source>
        <translation>Korvane kann hier nicht auf den Browser warten (%1). Melden Sie sich stattdessen mit einem Code an.</translation>
    </message>
    <message>
        <source>%1 does not confirm the way back to Korvane. Try again later.</source>
        <translation>%1 bestätigt den Rückweg zu Korvane nicht. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Korvane was not allowed to use the %1 account.</source>
        <translation>Korvane wurde nicht erlaubt, das %1-Konto zu verwenden.</translation>
    </message>
    <message>
        <source>Sign in again.</source>
        <translation>Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>The sign-in was cancelled.</source>
        <translation>Die Anmeldung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Nobody answered in time. Sign in again.</source>
        <translation>Es kam nicht rechtzeitig eine Antwort. Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>%1 took too long to answer. Try again later.</source>
        <translation>%1 hat zu lange nicht geantwortet. Versuchen Sie es später erneut.</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n Tag</numerusform>
            <numerusform>%n Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n Stunde</numerusform>
            <numerusform>%n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>it holds something twice</source>
        <translation>sie enthält etwas doppelt</translation>
    </message>
    <message>
        <source>it holds no usable "%1"</source>
        <translation>sie enthält kein brauchbares „%1“</translation>
    </message>
    <message>
        <source>it names no user</source>
        <translation>sie nennt keinen Benutzer</translation>
    </message>
    <message>
        <source>%1 is out of order just now (status %2). Try again later.</source>
        <translation>%1 ist gerade gestört (Status %2). Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>sie ist zu lang</translation>
    </message>
    <message>
        <source>it is not HTTP</source>
        <translation>sie ist keine HTTP-Antwort</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>Status %1</translation>
    </message>
    <message>
        <source>There is no network connection. Connect, then sign in again.</source>
        <translation>Es besteht keine Netzwerkverbindung. Stellen Sie eine her und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>There is no safe connection to %1: %2 Check that date and time of this computer are right, then sign in again.</source>
        <translation>Es besteht keine sichere Verbindung zu %1: %2 Prüfen Sie Datum und Uhrzeit dieses Computers und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2 Check the network connection, then sign in again.</source>
        <translation>%1 ist nicht erreichbar: %2 Prüfen Sie die Netzwerkverbindung und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>%1 does not take the application's key, or the secret does not belong to it. Check both and sign in again.</source>
        <translation>%1 nimmt den Schlüssel der Anwendung nicht an, oder das Secret gehört nicht dazu. Prüfen Sie beides und melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>The code is not the one that %1 gave.</source>
        <translation>Der Code ist nicht der, den %1 ausgegeben hat.</translation>
    </message>
    <message>
        <source>This sign-in has expired or was used already. Sign in again.</source>
        <translation>Diese Anmeldung ist abgelaufen oder wurde bereits verwendet. Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in (%2). Try again later.</source>
        <translation>%1 hat die Anmeldung abgelehnt (%2). Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 fast. Set date and time right, then sign in again.</source>
        <translation>%1 hat die Anmeldung abgelehnt, weil die Uhr dieses Computers um %2 vorgeht. Stellen Sie Datum und Uhrzeit richtig ein und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 slow. Set date and time right, then sign in again.</source>
        <translation>%1 hat die Anmeldung abgelehnt, weil die Uhr dieses Computers um %2 nachgeht. Stellen Sie Datum und Uhrzeit richtig ein und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is wrong. Set date and time right, then sign in again.</source>
        <translation>%1 hat die Anmeldung abgelehnt, weil die Uhr dieses Computers falsch geht. Stellen Sie Datum und Uhrzeit richtig ein und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>%1 answered something that Korvane does not understand (%2). Try again later.</source>
        <translation>%1 hat etwas geantwortet, das Korvane nicht versteht (%2). Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The video “%1” cannot be opened (%2). Choose it again.</source>
        <translation>Das Video „%1“ kann nicht geöffnet werden (%2). Wählen Sie es erneut aus.</translation>
    </message>
    <message>
        <source>no such asset</source>
        <translation>nicht in der Mediathek vorhanden</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>Exit-Status %1</translation>
    </message>
    <message>
        <source>stopped by signal %1</source>
        <translation>durch Signal %1 beendet</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>hat zu lange gedauert</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>wurde abgebrochen</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>The operation could not be completed (%1, code %2).</source>
        <translation>Der Vorgang konnte nicht abgeschlossen werden (%1, Code %2).</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>der Inhalt ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>it is not JSON at byte %1</source>
        <translation>ab Byte %1 kein gültiges JSON</translation>
    </message>
    <message>
        <source>it holds a number that is out of range</source>
        <translation>der Inhalt hat eine Zahl außerhalb des Wertebereichs</translation>
    </message>
    <message>
        <source>There is only the cellular network, which this upload may not use.</source>
        <translation>Es gibt nur das Mobilfunknetz, das dieser Upload nicht verwenden darf.</translation>
    </message>
    <message>
        <source>The file became shorter while it was being sent.</source>
        <translation>Die Datei wurde während des Sendens kürzer.</translation>
    </message>
    <message>
        <source>The upload was stopped.</source>
        <translation>Der Upload wurde angehalten.</translation>
    </message>
    <message>
        <source>There is no network connection.</source>
        <translation>Es besteht keine Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>The proxy server was not found.</source>
        <translation>Der Proxyserver wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>No server with the name %1 was found.</source>
        <translation>Es wurde kein Server mit dem Namen %1 gefunden.</translation>
    </message>
    <message>
        <source>No connection to %1 could be made.</source>
        <translation>Es konnte keine Verbindung zu %1 hergestellt werden.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>Die Verbindung ist abgebrochen.</translation>
    </message>
    <message>
        <source>A secure connection could not be made.</source>
        <translation>Es konnte keine sichere Verbindung hergestellt werden.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.</source>
        <translation>Dem Zertifikat von %1 wird nicht vertraut.</translation>
    </message>
    <message>
        <source>The web service did not respond in time.</source>
        <translation>Der Webdienst hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>The web service answered before it had everything.</source>
        <translation>Der Webdienst hat geantwortet, bevor er alles hatte.</translation>
    </message>
    <message>
        <source>The file changed while it was being sent.</source>
        <translation>Die Datei wurde während des Sendens geändert.</translation>
    </message>
    <message>
        <source>The web service's answer is too large.</source>
        <translation>Die Antwort des Webdienstes ist zu groß.</translation>
    </message>
    <message>
        <source>The web service does not answer in HTTP.</source>
        <translation>Der Webdienst antwortet nicht über HTTP.</translation>
    </message>
    <message>
        <source>The web service closed the connection.</source>
        <translation>Der Webdienst hat die Verbindung geschlossen.</translation>
    </message>
    <message>
        <source>the picture cannot be decoded (%1)</source>
        <translation>das Bild kann nicht dekodiert werden (%1)</translation>
    </message>
    <message>
        <source>the picture's file</source>
        <translation>die Datei des Bildes</translation>
    </message>
    <message>
        <source>it does not hold a JSON object</source>
        <translation>sie enthält kein JSON-Objekt</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>a value has a type that JSON has not</source>
        <translation>ein Wert hat einen Typ, den es in JSON nicht gibt</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>Schreiben nach %1 nicht möglich</translation>
    </message>
    <message>
        <source>Cannot copy the data to be shared</source>
        <translation>Die Daten zum Teilen können nicht kopiert werden</translation>
    </message>
    <message>
        <source>the file has changed since it was chosen. Check that it is complete, then share it again.</source>
        <translation>Die Datei wurde geändert, seit sie ausgewählt wurde. Prüfen Sie, ob sie vollständig ist, und teilen Sie sie dann erneut.</translation>
    </message>
    <message>
        <source>Cannot open the data to be shared</source>
        <translation>Die Daten zum Teilen können nicht geöffnet werden</translation>
    </message>
    <message>
        <source>the file has %1, Flickr takes photos of up to 200 MB</source>
        <translation>die Datei ist %1 groß, Flickr nimmt Fotos bis 200 MB an</translation>
    </message>
    <message>
        <source>the file is not a picture</source>
        <translation>die Datei ist kein Bild</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the file is a picture; share it to Flickr</source>
        <translation>die Datei ist ein Bild; teilen Sie sie auf Flickr</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1</source>
        <translation>Der Sitzungsbus ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) cannot be reached: %1</source>
        <translation>Der Upload-Dienst (korvane-uploadd) ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) does not answer. End it and try again: it goes on with its uploads when it is started anew.</source>
        <translation>Der Upload-Dienst (korvane-uploadd) antwortet nicht. Beenden Sie ihn und versuchen Sie es noch einmal: Wenn er neu gestartet wird, setzt er seine Uploads fort.</translation>
    </message>
    <message>
        <source>The upload service may have taken over what was shared, but its answer was lost. Look at the uploads before you share it again. (%1)</source>
        <translation>Der Upload-Dienst hat das Geteilte vielleicht übernommen, doch seine Antwort ging verloren. Sehen Sie bei den Uploads nach, bevor Sie es noch einmal teilen. (%1)</translation>
    </message>
    <message>
        <source>It was broken off.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The upload service that is running uses %1 %2, this program %3. End the service (it starts again by itself) or use the same settings.</source>
        <translation>Der laufende Upload-Dienst verwendet %1 %2, dieses Programm %3. Beenden Sie den Dienst (er startet von selbst neu) oder verwenden Sie dieselben Einstellungen.</translation>
    </message>
    <message>
        <source>the spool folder</source>
        <translation>den Spool-Ordner</translation>
    </message>
    <message>
        <source>the %1 host</source>
        <translation>den Server für %1</translation>
    </message>
    <message>
        <source>the %1 folder</source>
        <translation>den Ordner %1</translation>
    </message>
    <message>
        <source>There is no session bus, and the upload service %1 could not be started. Its log says why: %2</source>
        <translation>Es gibt keinen Sitzungsbus, und der Upload-Dienst %1 konnte nicht gestartet werden. Der Grund steht in seinem Protokoll: %2</translation>
    </message>
    <message>
        <source>Too much to share at once; share fewer items.</source>
        <translation>Das ist zu viel auf einmal; teilen Sie weniger Objekte.</translation>
    </message>
    <message>
        <source>"%1" holds a value of type %2, which cannot be shared.</source>
        <translation>„%1“ enthält einen Wert vom Typ %2, der nicht geteilt werden kann.</translation>
    </message>
    <message>
        <source>"%1" holds a NUL character; remove it.</source>
        <translation>„%1“ enthält ein NUL-Zeichen; entfernen Sie es.</translation>
    </message>
    <message>
        <source>The data of "%1" lies outside of the file that came with it.</source>
        <translation>Die Daten von „%1“ liegen außerhalb der mitgesandten Datei.</translation>
    </message>
    <message>
        <source>The file was empty. Check it and share it again.</source>
        <translation>Die Datei war leer. Prüfen Sie sie und teilen Sie sie erneut.</translation>
    </message>
    <message>
        <source>Flickr takes JPEG, PNG, GIF and TIFF pictures.</source>
        <translation>Flickr nimmt Bilder im Format JPEG, PNG, GIF und TIFF an.</translation>
    </message>
    <message>
        <source>Your upload limit is used up. Free space on Flickr, then retry.</source>
        <translation>Ihr Upload-Kontingent ist aufgebraucht. Schaffen Sie Platz auf Flickr und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The file is too large for Flickr.</source>
        <translation>Die Datei ist zu groß für Flickr.</translation>
    </message>
    <message>
        <source>Sign in again, then retry.</source>
        <translation>Melden Sie sich erneut an und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Sign in again and allow uploads, then retry.</source>
        <translation>Melden Sie sich erneut an, erlauben Sie das Hochladen und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Check the application's key, then retry.</source>
        <translation>Prüfen Sie den Schlüssel der Anwendung und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Change what Flickr objects to and share it again, or retry.</source>
        <translation>Ändern Sie, was Flickr beanstandet, und teilen Sie erneut, oder versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Flickr asks to send the request again.</source>
        <translation>Flickr bittet darum, die Anfrage erneut zu senden.</translation>
    </message>
    <message>
        <source>Flickr refused the request's time. Set this device's clock, then retry.</source>
        <translation>Flickr hat die Uhrzeit der Anfrage abgelehnt. Stellen Sie die Uhr dieses Geräts und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Flickr does not accept the sign-in (%1). Sign in again, then retry.</source>
        <translation>Flickr akzeptiert die Anmeldung nicht (%1). Melden Sie sich erneut an und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Flickr is not available just now: %1</source>
        <translation>Flickr ist gerade nicht verfügbar: %1</translation>
    </message>
    <message>
        <source>Flickr's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>Die Antwort von Flickr war nicht verständlich (HTTP-Status %1). Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Flickr refused the photo: %1 (code %2). %3</source>
        <translation>Flickr hat das Foto abgelehnt: %1 (Code %2). %3</translation>
    </message>
    <message>
        <source>The photo is on Flickr; adding it to its album is still to be done. %1</source>
        <translation>Das Foto ist auf Flickr; es muss noch zum Album hinzugefügt werden. %1</translation>
    </message>
    <message>
        <source>The photo %1 is no longer in the photo library. Share it again from where it is now.</source>
        <translation>Das Foto %1 ist nicht mehr in der Fotomediathek. Teilen Sie es erneut von dort, wo es jetzt liegt.</translation>
    </message>
    <message>
        <source>There is no usable sign-in for the %1 account of %2, from which this was shared.</source>
        <translation>Für das %1-Konto von %2, mit dem dies geteilt wurde, gibt es keine brauchbare Anmeldung.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) shared to Flickr</source>
        <translation>
            <numerusform>%n Foto auf Flickr geteilt</numerusform>
            <numerusform>%n Fotos auf Flickr geteilt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) shared to Vimeo</source>
        <translation>
            <numerusform>%n Video auf Vimeo geteilt</numerusform>
            <numerusform>%n Videos auf Vimeo geteilt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) could not be shared</source>
        <translation>
            <numerusform>%n Foto konnte nicht geteilt werden</numerusform>
            <numerusform>%n Fotos konnten nicht geteilt werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) could not be shared</source>
        <translation>
            <numerusform>%n Video konnte nicht geteilt werden</numerusform>
            <numerusform>%n Videos konnten nicht geteilt werden</numerusform>
        </translation>
    </message>
    <message>
        <source>Show uploads</source>
        <translation>Uploads anzeigen</translation>
    </message>
    <message>
        <source>The file %1 has changed since it was shared. Share it again.</source>
        <translation>Die Datei %1 wurde geändert, seit sie geteilt wurde. Teilen Sie sie erneut.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1). Bring it back, then retry.</source>
        <translation>Die Datei kann nicht gelesen werden (%1). Stellen Sie sie wieder bereit und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Die Datei %1 ist leer.</translation>
    </message>
    <message>
        <source>There is no room to convert %1 in %2.</source>
        <translation>In %2 ist kein Platz, um %1 umzuwandeln.</translation>
    </message>
    <message>
        <source>%1 is a video. Share it to Vimeo.</source>
        <translation>%1 ist ein Video. Teilen Sie es auf Vimeo.</translation>
    </message>
    <message>
        <source>The post holds no %1. Share the %1 again.</source>
        <translation>Der Beitrag enthält kein %1. Teilen Sie das %1 erneut.</translation>
    </message>
    <message>
        <source>The %1's data is gone from this device. Share it again.</source>
        <translation>Die Daten zum %1 sind auf diesem Gerät nicht mehr vorhanden. Teilen Sie es erneut.</translation>
    </message>
    <message>
        <source>The %1 is empty.</source>
        <translation>Das %1 ist leer.</translation>
    </message>
    <message>
        <source>The %1's data was damaged on this device. Share it again.</source>
        <translation>Die Daten zum %1 wurden auf diesem Gerät beschädigt. Teilen Sie es erneut.</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>A video on Vimeo needs a title. Share it again with one.</source>
        <translation>Ein Video auf Vimeo braucht einen Titel. Teilen Sie es erneut mit einem Titel.</translation>
    </message>
    <message>
        <source>video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>dbus-daemon could not be started at %1</source>
        <translation>dbus-daemon konnte nicht an %1 gestartet werden</translation>
    </message>
    <message>
        <source>The data to be shared cannot be stored in %1</source>
        <translation>Die Daten zum Teilen können nicht in %1 gespeichert werden</translation>
    </message>
    <message>
        <source>Vimeo's upload ticket cannot be used: %1. Retry later.</source>
        <translation>Das Upload-Ticket von Vimeo ist nicht verwendbar: %1. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>it has no id</source>
        <translation>es hat keine Kennung</translation>
    </message>
    <message>
        <source>it does not say where to send the video</source>
        <translation>es sagt nicht, wohin das Video gesendet werden soll</translation>
    </message>
    <message>
        <source>its address begins with %1:</source>
        <translation>seine Adresse beginnt mit %1:</translation>
    </message>
    <message>
        <source>it points into the local network (%1)</source>
        <translation>es verweist ins lokale Netz (%1)</translation>
    </message>
    <message>
        <source>The upload service ended unexpectedly each time it tried this upload, so it was set aside. Check the file, then retry or remove the upload.</source>
        <translation>Der Upload-Dienst endete bei jedem Versuch dieses Uploads unerwartet, daher wurde er zurückgestellt. Prüfen Sie die Datei und wiederholen oder entfernen Sie dann den Upload.</translation>
    </message>
    <message>
        <source>There is nothing to share.</source>
        <translation>Es gibt nichts zu teilen.</translation>
    </message>
    <message>
        <source>There is no %1 account.</source>
        <translation>Es gibt kein %1-Konto.</translation>
    </message>
    <message>
        <source>Given up after %1 hours of trying. Last: %2 Retry when it is better.</source>
        <translation>Nach %1 Stunden vergeblicher Versuche aufgegeben. Zuletzt: %2 Versuchen Sie es erneut, wenn es besser steht.</translation>
    </message>
    <message>
        <source>The upload queue cannot be written: %1</source>
        <translation>Die Upload-Warteschlange kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1 ist nicht erreichbar: %2</translation>
    </message>
    <message>
        <source>The connection to %1 failed: %2</source>
        <translation>Die Verbindung zu %1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>%1 is in trouble (HTTP status %2).</source>
        <translation>%1 hat Schwierigkeiten (HTTP-Status %2).</translation>
    </message>
    <message>
        <source>Vimeo did not say how much of the video it has (HTTP status %1).</source>
        <translation>Vimeo hat nicht gesagt, wie viel vom Video dort angekommen ist (HTTP-Status %1).</translation>
    </message>
    <message>
        <source>Vimeo says that it has more of the video than there is. Retry later.</source>
        <translation>Vimeo gibt an, mehr vom Video zu haben, als es gibt. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Vimeo takes the video's parts but stores nothing of them. Retry later.</source>
        <translation>Vimeo nimmt die Teile des Videos an, speichert aber nichts davon. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Vimeo's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>Die Antwort von Vimeo war nicht verständlich (HTTP-Status %1). Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Vimeo refused the video: %1 (code %2). Retry, or share it again.</source>
        <translation>Vimeo hat das Video abgelehnt: %1 (Code %2). Versuchen Sie es erneut oder teilen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Vimeo does not accept the sign-in (%1). Sign in again, check this device's clock, then retry.</source>
        <translation>Vimeo akzeptiert die Anmeldung nicht (%1). Melden Sie sich erneut an, prüfen Sie die Uhr dieses Geräts und versuchen Sie es dann noch einmal.</translation>
    </message>
    <message>
        <source>Vimeo asks to send the video again.</source>
        <translation>Vimeo bittet darum, das Video erneut zu senden.</translation>
    </message>
    <message>
        <source>The video is larger than the space that is free on Vimeo. Free space there, or share a smaller one.</source>
        <translation>Das Video ist größer als der freie Platz auf Vimeo. Schaffen Sie dort Platz oder teilen Sie ein kleineres.</translation>
    </message>
    <message>
        <source>The Vimeo account can take no more videos just now. Retry when its quota is renewed.</source>
        <translation>Das Vimeo-Konto kann gerade keine weiteren Videos aufnehmen. Versuchen Sie es erneut, wenn sein Kontingent erneuert ist.</translation>
    </message>
    <message>
        <source>title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>privacy setting</source>
        <translation>Einstellung zur Sichtbarkeit</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Vimeo refused it: %1 (code %2). Retry.</source>
        <translation>Vimeo hat dies abgelehnt: %1 (Code %2). Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The video is on Vimeo, but without its %1. %2</source>
        <translation>Das Video ist auf Vimeo, aber es fehlt noch: %1. %2</translation>
    </message>
    <message>
        <source>Until then others may see the video.</source>
        <translation>Bis dahin können andere das Video sehen.</translation>
    </message>
    <message>
        <source>The server that Vimeo named for this video cannot be reached: %1 Vimeo will be asked for another one.</source>
        <translation>Der Server, den Vimeo für dieses Video genannt hat, ist nicht erreichbar: %1 Vimeo wird um einen anderen gebeten.</translation>
    </message>
    <message>
        <source>Vimeo did not say whether it has the whole video: the video may be on Vimeo; look there, then retry or remove.</source>
        <translation>Vimeo hat nicht gesagt, ob das ganze Video angekommen ist. Vielleicht ist es schon auf Vimeo: Sehen Sie dort nach und wiederholen oder entfernen Sie dann den Upload.</translation>
    </message>
    <message>
        <source>The whole video is at Vimeo, but the upload queue cannot be written. Make room on the disk; it goes on by itself.</source>
        <translation>Das ganze Video ist bei Vimeo, aber die Upload-Warteschlange kann nicht geschrieben werden. Schaffen Sie Platz auf dem Datenträger; es geht dann von selbst weiter.</translation>
    </message>
</context>
</TS>
