<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>Flickr's answer is not understood.</source>
        <translation>Flickr's answer is not understood.</translation>
    </message>
    <message>
        <source>Flickr says: %1</source>
        <translation>Flickr says: %1</translation>
    </message>
    <message>
        <source>The upload service cannot be watched: %1</source>
        <translation>The upload service cannot be watched: %1</translation>
    </message>
    <message>
        <source>“%1” ends too early: it is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made.</source>
        <translation>“%1” ends too early: it is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made.</translation>
    </message>
    <message>
        <source>What ffmpeg says of “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>What ffmpeg says of “%1” is not understood. Check the package “ffmpeg”.</translation>
    </message>
    <message>
        <source>Only MP4 files can be exported.</source>
        <translation>Only MP4 files can be exported.</translation>
    </message>
    <message>
        <source>There is no file to export “%1” to.</source>
        <translation>There is no file to export “%1” to.</translation>
    </message>
    <message>
        <source>Another export writes to %1. Try again.</source>
        <translation>Another export writes to %1. Try again.</translation>
    </message>
    <message>
        <source>“%1” was changed while it was exported. Try again when it is complete.</source>
        <translation>“%1” was changed while it was exported. Try again when it is complete.</translation>
    </message>
    <message>
        <source>There is not enough disk space to export “%1”. Free some space and try again.</source>
        <translation>There is not enough disk space to export “%1”. Free some space and try again.</translation>
    </message>
    <message>
        <source>the export was cancelled</source>
        <translation>the export was cancelled</translation>
    </message>
    <message>
        <source>“%1” is not a video that can be read: it is damaged, incomplete or of an unknown format. Check that it plays, or choose another file.</source>
        <translation>“%1” is not a video that can be read: it is damaged, incomplete or of an unknown format. Check that it plays, or choose another file.</translation>
    </message>
    <message>
        <source>“%1” could not be looked at (%2). Try again.</source>
        <translation>“%1” could not be looked at (%2). Try again.</translation>
    </message>
    <message>
        <source>The answer of ffprobe about “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>The answer of ffprobe about “%1” is not understood. Check the package “ffmpeg”.</translation>
    </message>
    <message>
        <source>There are no pictures in “%1”. Choose a file with a video in it.</source>
        <translation>There are no pictures in “%1”. Choose a file with a video in it.</translation>
    </message>
    <message>
        <source>“%1” is 0 seconds long. Choose another file.</source>
        <translation>“%1” is 0 seconds long. Choose another file.</translation>
    </message>
    <message>
        <source>Videos cannot be read without the programs ffmpeg and ffprobe. Install the package “ffmpeg” and try again.</source>
        <translation>Videos cannot be read without the programs ffmpeg and ffprobe. Install the package “ffmpeg” and try again.</translation>
    </message>
    <message>
        <source>The program for videos cannot be started: %1</source>
        <translation>The program for videos cannot be started: %1</translation>
    </message>
    <message>
        <source>The export of “%1” broke off (%2). Try again.</source>
        <translation>The export of “%1” broke off (%2). Try again.</translation>
    </message>
    <message>
        <source>The installed ffmpeg cannot write H.264 and AAC. Install a package “ffmpeg” with libx264 and try again.</source>
        <translation>The installed ffmpeg cannot write H.264 and AAC. Install a package “ffmpeg” with libx264 and try again.</translation>
    </message>
    <message>
        <source>“%1” is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made (%2).</source>
        <translation>“%1” is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made (%2).</translation>
    </message>
    <message>
        <source>Accounts of type "%1" cannot be stored.</source>
        <translation>Accounts of type "%1" cannot be stored.</translation>
    </message>
    <message>
        <source>The user name is empty or holds control characters.</source>
        <translation>The user name is empty or holds control characters.</translation>
    </message>
    <message>
        <source>A part of the credential is empty or holds control characters.</source>
        <translation>A part of the credential is empty or holds control characters.</translation>
    </message>
    <message>
        <source>"accounts" is not a list</source>
        <translation>"accounts" is not a list</translation>
    </message>
    <message>
        <source>The list of accounts was damaged and is kept as %1. Sign in again.</source>
        <translation>The list of accounts was damaged and is kept as %1. Sign in again.</translation>
    </message>
    <message>
        <source>No account in %1 is understood. Mend the file, or sign in again.</source>
        <translation>No account in %1 is understood. Mend the file, or sign in again.</translation>
    </message>
    <message>
        <source>There is no account "%1".</source>
        <translation>There is no account "%1".</translation>
    </message>
    <message>
        <source>The credential file cannot be used: %1.</source>
        <translation>The credential file cannot be used: %1.</translation>
    </message>
    <message>
        <source>"%1" is missing</source>
        <translation>"%1" is missing</translation>
    </message>
    <message>
        <source>"%1" is not a text</source>
        <translation>"%1" is not a text</translation>
    </message>
    <message>
        <source>"%1" is empty</source>
        <translation>"%1" is empty</translation>
    </message>
    <message>
        <source>"%1" holds control characters, such as a line break</source>
        <translation>"%1" holds control characters, such as a line break</translation>
    </message>
    <message>
        <source>it is larger than %1 KB</source>
        <translation>it is larger than %1 KB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>it is not a JSON object</translation>
    </message>
    <message>
        <source>The application's key is empty, too long, or holds spaces or special characters.</source>
        <translation>The application's key is empty, too long, or holds spaces or special characters.</translation>
    </message>
    <message>
        <source>The application's secret is empty, too long, or holds spaces or special characters.</source>
        <translation>The application's secret is empty, too long, or holds spaces or special characters.</translation>
    </message>
    <message>
        <source>There is no such web service.</source>
        <translation>There is no such web service.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>en</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Too long</translation>
    </message>
    <message>
        <source>This request is too long.</source>
        <translation>This request is too long.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Not found</translation>
    </message>
    <message>
        <source>There is nothing here.</source>
        <translation>There is nothing here.</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>Not possible</translation>
    </message>
    <message>
        <source>This page can only be opened.</source>
        <translation>This page can only be opened.</translation>
    </message>
    <message>
        <source>Another sign-in</source>
        <translation>Another sign-in</translation>
    </message>
    <message>
        <source>This page belongs to another sign-in. Go back to Korvane.</source>
        <translation>This page belongs to another sign-in. Go back to Korvane.</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Not signed in</translation>
    </message>
    <message>
        <source>You can close this page and go back to Korvane.</source>
        <translation>You can close this page and go back to Korvane.</translation>
    </message>
    <message>
        <source>Thank you</source>
        <translation>Thank you</translation>
    </message>
    <message>
        <source>Add the account again.</source>
        <translation>Add the account again.</translation>
    </message>
    <message>
        <source>Enter the keys again.</source>
        <translation>Enter the keys again.</translation>
    </message>
    <message>
        <source>The stored credential has no usable "%1". %2</source>
        <translation>The stored credential has no usable "%1". %2</translation>
    </message>
    <message>
        <source>It is in the keyring, which KORVANE_SECRETS=file forbids to use. %1</source>
        <translation>It is in the keyring, which KORVANE_SECRETS=file forbids to use. %1</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it and try again.</source>
        <translation>The keyring is locked. Unlock it and try again.</translation>
    </message>
    <message>
        <source>%1 belongs to another user. Move it away, then add the account again.</source>
        <translation>%1 belongs to another user. Move it away, then add the account again.</translation>
    </message>
    <message>
        <source>The credential was not stored: the keyring does not answer. Try again, log out and in again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>The credential was not stored: the keyring does not answer. Try again, log out and in again, or set KORVANE_SECRETS=file to keep credentials in a file.</translation>
    </message>
    <message>
        <source>The keyring does not answer. Try again, or log out and in again.</source>
        <translation>The keyring does not answer. Try again, or log out and in again.</translation>
    </message>
    <message>
        <source>The keyring does not hold it any more. %1</source>
        <translation>The keyring does not hold it any more. %1</translation>
    </message>
    <message>
        <source>The keyring cannot be used: %1.</source>
        <translation>The keyring cannot be used: %1.</translation>
    </message>
    <message>
        <source>%1 does not hold it. %2</source>
        <translation>%1 does not hold it. %2</translation>
    </message>
    <message>
        <source>The credential was not stored: %1. Unlock the keyring and try again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>The credential was not stored: %1. Unlock the keyring and try again, or set KORVANE_SECRETS=file to keep credentials in a file.</translation>
    </message>
    <message>
        <source>the keyring gave no reason</source>
        <translation>the keyring gave no reason</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>there is no session bus</translation>
    </message>
    <message>
        <source>the keyring did not answer in time</source>
        <translation>the keyring did not answer in time</translation>
    </message>
    <message>
        <source>the keyring does not hold it</source>
        <translation>the keyring does not hold it</translation>
    </message>
    <message>
        <source>the keyring is locked</source>
        <translation>the keyring is locked</translation>
    </message>
    <message>
        <source>the keyring gave no text</source>
        <translation>the keyring gave no text</translation>
    </message>
    <message>
        <source>there is no default keyring</source>
        <translation>there is no default keyring</translation>
    </message>
    <message>
        <source>Korvane cannot wait for the browser here (%1). Sign in with a typed code instead.</source>
        <translation>Korvane cannot wait for the browser here (%1). Sign in with a typed code instead.</translation>
    </message>
    <message>
        <source>%1 does not confirm the way back to Korvane. Try again later.</source>
        <translation>%1 does not confirm the way back to Korvane. Try again later.</translation>
    </message>
    <message>
        <source>Korvane was not allowed to use the %1 account.</source>
        <translation>Korvane was not allowed to use the %1 account.</translation>
    </message>
    <message>
        <source>Sign in again.</source>
        <translation>Sign in again.</translation>
    </message>
    <message>
        <source>The sign-in was cancelled.</source>
        <translation>The sign-in was cancelled.</translation>
    </message>
    <message>
        <source>Nobody answered in time. Sign in again.</source>
        <translation>Nobody answered in time. Sign in again.</translation>
    </message>
    <message>
        <source>%1 took too long to answer. Try again later.</source>
        <translation>%1 took too long to answer. Try again later.</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n hour</numerusform>
            <numerusform>%n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>it holds something twice</source>
        <translation>it holds something twice</translation>
    </message>
    <message>
        <source>it holds no usable "%1"</source>
        <translation>it holds no usable "%1"</translation>
    </message>
    <message>
        <source>it names no user</source>
        <translation>it names no user</translation>
    </message>
    <message>
        <source>%1 is out of order just now (status %2). Try again later.</source>
        <translation>%1 is out of order just now (status %2). Try again later.</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>it is too long</translation>
    </message>
    <message>
        <source>it is not HTTP</source>
        <translation>it is not HTTP</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>status %1</translation>
    </message>
    <message>
        <source>There is no network connection. Connect, then sign in again.</source>
        <translation>There is no network connection. Connect, then sign in again.</translation>
    </message>
    <message>
        <source>There is no safe connection to %1: %2 Check that date and time of this computer are right, then sign in again.</source>
        <translation>There is no safe connection to %1: %2 Check that date and time of this computer are right, then sign in again.</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2 Check the network connection, then sign in again.</source>
        <translation>%1 cannot be reached: %2 Check the network connection, then sign in again.</translation>
    </message>
    <message>
        <source>%1 does not take the application's key, or the secret does not belong to it. Check both and sign in again.</source>
        <translation>%1 does not take the application's key, or the secret does not belong to it. Check both and sign in again.</translation>
    </message>
    <message>
        <source>The code is not the one that %1 gave.</source>
        <translation>The code is not the one that %1 gave.</translation>
    </message>
    <message>
        <source>This sign-in has expired or was used already. Sign in again.</source>
        <translation>This sign-in has expired or was used already. Sign in again.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in (%2). Try again later.</source>
        <translation>%1 refused the sign-in (%2). Try again later.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 fast. Set date and time right, then sign in again.</source>
        <translation>%1 refused the sign-in because this computer's clock is %2 fast. Set date and time right, then sign in again.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 slow. Set date and time right, then sign in again.</source>
        <translation>%1 refused the sign-in because this computer's clock is %2 slow. Set date and time right, then sign in again.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is wrong. Set date and time right, then sign in again.</source>
        <translation>%1 refused the sign-in because this computer's clock is wrong. Set date and time right, then sign in again.</translation>
    </message>
    <message>
        <source>%1 answered something that Korvane does not understand (%2). Try again later.</source>
        <translation>%1 answered something that Korvane does not understand (%2). Try again later.</translation>
    </message>
    <message>
        <source>The video “%1” cannot be opened (%2). Choose it again.</source>
        <translation>The video “%1” cannot be opened (%2). Choose it again.</translation>
    </message>
    <message>
        <source>no such asset</source>
        <translation>no such asset</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>exit status %1</translation>
    </message>
    <message>
        <source>stopped by signal %1</source>
        <translation>stopped by signal %1</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>took too long</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>was cancelled</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>not a regular file</translation>
    </message>
    <message>
        <source>The operation could not be completed (%1, code %2).</source>
        <translation>The operation could not be completed (%1, code %2).</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>it is nested too deeply</translation>
    </message>
    <message>
        <source>it is not JSON at byte %1</source>
        <translation>it is not JSON at byte %1</translation>
    </message>
    <message>
        <source>it holds a number that is out of range</source>
        <translation>it holds a number that is out of range</translation>
    </message>
    <message>
        <source>There is only the cellular network, which this upload may not use.</source>
        <translation>There is only the cellular network, which this upload may not use.</translation>
    </message>
    <message>
        <source>The file became shorter while it was being sent.</source>
        <translation>The file became shorter while it was being sent.</translation>
    </message>
    <message>
        <source>The upload was stopped.</source>
        <translation>The upload was stopped.</translation>
    </message>
    <message>
        <source>There is no network connection.</source>
        <translation>There is no network connection.</translation>
    </message>
    <message>
        <source>The proxy server was not found.</source>
        <translation>The proxy server was not found.</translation>
    </message>
    <message>
        <source>No server with the name %1 was found.</source>
        <translation>No server with the name %1 was found.</translation>
    </message>
    <message>
        <source>No connection to %1 could be made.</source>
        <translation>No connection to %1 could be made.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>The connection broke off.</translation>
    </message>
    <message>
        <source>A secure connection could not be made.</source>
        <translation>A secure connection could not be made.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.</source>
        <translation>The certificate of %1 is not trusted.</translation>
    </message>
    <message>
        <source>The web service did not respond in time.</source>
        <translation>The web service did not respond in time.</translation>
    </message>
    <message>
        <source>The web service answered before it had everything.</source>
        <translation>The web service answered before it had everything.</translation>
    </message>
    <message>
        <source>The file changed while it was being sent.</source>
        <translation>The file changed while it was being sent.</translation>
    </message>
    <message>
        <source>The web service's answer is too large.</source>
        <translation>The web service's answer is too large.</translation>
    </message>
    <message>
        <source>The web service does not answer in HTTP.</source>
        <translation>The web service does not answer in HTTP.</translation>
    </message>
    <message>
        <source>The web service closed the connection.</source>
        <translation>The web service closed the connection.</translation>
    </message>
    <message>
        <source>the picture cannot be decoded (%1)</source>
        <translation>the picture cannot be decoded (%1)</translation>
    </message>
    <message>
        <source>the picture's file</source>
        <translation>the picture's file</translation>
    </message>
    <message>
        <source>it does not hold a JSON object</source>
        <translation>it does not hold a JSON object</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 could not be written: %2</translation>
    </message>
    <message>
        <source>a value has a type that JSON has not</source>
        <translation>a value has a type that JSON has not</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>Cannot write to %1</translation>
    </message>
    <message>
        <source>Cannot copy the data to be shared</source>
        <translation>Cannot copy the data to be shared</translation>
    </message>
    <message>
        <source>the file has changed since it was chosen. Check that it is complete, then share it again.</source>
        <translation>the file has changed since it was chosen. Check that it is complete, then share it again.</translation>
    </message>
    <message>
        <source>Cannot open the data to be shared</source>
        <translation>Cannot open the data to be shared</translation>
    </message>
    <message>
        <source>the file has %1, Flickr takes photos of up to 200 MB</source>
        <translation>the file has %1, Flickr takes photos of up to 200 MB</translation>
    </message>
    <message>
        <source>the file is not a picture</source>
        <translation>the file is not a picture</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>the file is a picture; share it to Flickr</source>
        <translation>the file is a picture; share it to Flickr</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1</source>
        <translation>The session bus cannot be reached: %1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) cannot be reached: %1</source>
        <translation>The upload service (korvane-uploadd) cannot be reached: %1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) does not answer. End it and try again: it goes on with its uploads when it is started anew.</source>
        <translation>The upload service (korvane-uploadd) does not answer. End it and try again: it goes on with its uploads when it is started anew.</translation>
    </message>
    <message>
        <source>The upload service may have taken over what was shared, but its answer was lost. Look at the uploads before you share it again. (%1)</source>
        <translation>The upload service may have taken over what was shared, but its answer was lost. Look at the uploads before you share it again. (%1)</translation>
    </message>
    <message>
        <source>It was broken off.</source>
        <translation>It was broken off.</translation>
    </message>
    <message>
        <source>The upload service that is running uses %1 %2, this program %3. End the service (it starts again by itself) or use the same settings.</source>
        <translation>The upload service that is running uses %1 %2, this program %3. End the service (it starts again by itself) or use the same settings.</translation>
    </message>
    <message>
        <source>the spool folder</source>
        <translation>the spool folder</translation>
    </message>
    <message>
        <source>the %1 host</source>
        <translation>the %1 host</translation>
    </message>
    <message>
        <source>the %1 folder</source>
        <translation>the %1 folder</translation>
    </message>
    <message>
        <source>There is no session bus, and the upload service %1 could not be started. Its log says why: %2</source>
        <translation>There is no session bus, and the upload service %1 could not be started. Its log says why: %2</translation>
    </message>
    <message>
        <source>Too much to share at once; share fewer items.</source>
        <translation>Too much to share at once; share fewer items.</translation>
    </message>
    <message>
        <source>"%1" holds a value of type %2, which cannot be shared.</source>
        <translation>"%1" holds a value of type %2, which cannot be shared.</translation>
    </message>
    <message>
        <source>"%1" holds a NUL character; remove it.</source>
        <translation>"%1" holds a NUL character; remove it.</translation>
    </message>
    <message>
        <source>The data of "%1" lies outside of the file that came with it.</source>
        <translation>The data of "%1" lies outside of the file that came with it.</translation>
    </message>
    <message>
        <source>The file was empty. Check it and share it again.</source>
        <translation>The file was empty. Check it and share it again.</translation>
    </message>
    <message>
        <source>Flickr takes JPEG, PNG, GIF and TIFF pictures.</source>
        <translation>Flickr takes JPEG, PNG, GIF and TIFF pictures.</translation>
    </message>
    <message>
        <source>Your upload limit is used up. Free space on Flickr, then retry.</source>
        <translation>Your upload limit is used up. Free space on Flickr, then retry.</translation>
    </message>
    <message>
        <source>The file is too large for Flickr.</source>
        <translation>The file is too large for Flickr.</translation>
    </message>
    <message>
        <source>Sign in again, then retry.</source>
        <translation>Sign in again, then retry.</translation>
    </message>
    <message>
        <source>Sign in again and allow uploads, then retry.</source>
        <translation>Sign in again and allow uploads, then retry.</translation>
    </message>
    <message>
        <source>Check the application's key, then retry.</source>
        <translation>Check the application's key, then retry.</translation>
    </message>
    <message>
        <source>Change what Flickr objects to and share it again, or retry.</source>
        <translation>Change what Flickr objects to and share it again, or retry.</translation>
    </message>
    <message>
        <source>Flickr asks to send the request again.</source>
        <translation>Flickr asks to send the request again.</translation>
    </message>
    <message>
        <source>Flickr refused the request's time. Set this device's clock, then retry.</source>
        <translation>Flickr refused the request's time. Set this device's clock, then retry.</translation>
    </message>
    <message>
        <source>Flickr does not accept the sign-in (%1). Sign in again, then retry.</source>
        <translation>Flickr does not accept the sign-in (%1). Sign in again, then retry.</translation>
    </message>
    <message>
        <source>Flickr is not available just now: %1</source>
        <translation>Flickr is not available just now: %1</translation>
    </message>
    <message>
        <source>Flickr's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>Flickr's answer was not understood (HTTP status %1). Retry later.</translation>
    </message>
    <message>
        <source>Flickr refused the photo: %1 (code %2). %3</source>
        <translation>Flickr refused the photo: %1 (code %2). %3</translation>
    </message>
    <message>
        <source>The photo is on Flickr; adding it to its album is still to be done. %1</source>
        <translation>The photo is on Flickr; adding it to its album is still to be done. %1</translation>
    </message>
    <message>
        <source>The photo %1 is no longer in the photo library. Share it again from where it is now.</source>
        <translation>The photo %1 is no longer in the photo library. Share it again from where it is now.</translation>
    </message>
    <message>
        <source>There is no usable sign-in for the %1 account of %2, from which this was shared.</source>
        <translation>There is no usable sign-in for the %1 account of %2, from which this was shared.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) shared to Flickr</source>
        <translation>
            <numerusform>%n photo shared to Flickr</numerusform>
            <numerusform>%n photos shared to Flickr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) shared to Vimeo</source>
        <translation>
            <numerusform>%n video shared to Vimeo</numerusform>
            <numerusform>%n videos shared to Vimeo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) could not be shared</source>
        <translation>
            <numerusform>%n photo could not be shared</numerusform>
            <numerusform>%n photos could not be shared</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) could not be shared</source>
        <translation>
            <numerusform>%n video could not be shared</numerusform>
            <numerusform>%n videos could not be shared</numerusform>
        </translation>
    </message>
    <message>
        <source>Show uploads</source>
        <translation>Show uploads</translation>
    </message>
    <message>
        <source>The file %1 has changed since it was shared. Share it again.</source>
        <translation>The file %1 has changed since it was shared. Share it again.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1). Bring it back, then retry.</source>
        <translation>The file cannot be read (%1). Bring it back, then retry.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>The file %1 is empty.</translation>
    </message>
    <message>
        <source>There is no room to convert %1 in %2.</source>
        <translation>There is no room to convert %1 in %2.</translation>
    </message>
    <message>
        <source>%1 is a video. Share it to Vimeo.</source>
        <translation>%1 is a video. Share it to Vimeo.</translation>
    </message>
    <message>
        <source>The post holds no %1. Share the %1 again.</source>
        <translation>The post holds no %1. Share the %1 again.</translation>
    </message>
    <message>
        <source>The %1's data is gone from this device. Share it again.</source>
        <translation>The %1's data is gone from this device. Share it again.</translation>
    </message>
    <message>
        <source>The %1 is empty.</source>
        <translation>The %1 is empty.</translation>
    </message>
    <message>
        <source>The %1's data was damaged on this device. Share it again.</source>
        <translation>The %1's data was damaged on this device. Share it again.</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>A video on Vimeo needs a title. Share it again with one.</source>
        <translation>A video on Vimeo needs a title. Share it again with one.</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>dbus-daemon could not be started at %1</source>
        <translation>dbus-daemon could not be started at %1</translation>
    </message>
    <message>
        <source>The data to be shared cannot be stored in %1</source>
        <translation>The data to be shared cannot be stored in %1</translation>
    </message>
    <message>
        <source>Vimeo's upload ticket cannot be used: %1. Retry later.</source>
        <translation>Vimeo's upload ticket cannot be used: %1. Retry later.</translation>
    </message>
    <message>
        <source>it has no id</source>
        <translation>it has no id</translation>
    </message>
    <message>
        <source>it does not say where to send the video</source>
        <translation>it does not say where to send the video</translation>
    </message>
    <message>
        <source>its address begins with %1:</source>
        <translation>its address begins with %1:</translation>
    </message>
    <message>
        <source>it points into the local network (%1)</source>
        <translation>it points into the local network (%1)</translation>
    </message>
    <message>
        <source>The upload service ended unexpectedly each time it tried this upload, so it was set aside. Check the file, then retry or remove the upload.</source>
        <translation>The upload service ended unexpectedly each time it tried this upload, so it was set aside. Check the file, then retry or remove the upload.</translation>
    </message>
    <message>
        <source>There is nothing to share.</source>
        <translation>There is nothing to share.</translation>
    </message>
    <message>
        <source>There is no %1 account.</source>
        <translation>There is no %1 account.</translation>
    </message>
    <message>
        <source>Given up after %1 hours of trying. Last: %2 Retry when it is better.</source>
        <translation>Given up after %1 hours of trying. Last: %2 Retry when it is better.</translation>
    </message>
    <message>
        <source>The upload queue cannot be written: %1</source>
        <translation>The upload queue cannot be written: %1</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1 cannot be reached: %2</translation>
    </message>
    <message>
        <source>The connection to %1 failed: %2</source>
        <translation>The connection to %1 failed: %2</translation>
    </message>
    <message>
        <source>%1 is in trouble (HTTP status %2).</source>
        <translation>%1 is in trouble (HTTP status %2).</translation>
    </message>
    <message>
        <source>Vimeo did not say how much of the video it has (HTTP status %1).</source>
        <translation>Vimeo did not say how much of the video it has (HTTP status %1).</translation>
    </message>
    <message>
        <source>Vimeo says that it has more of the video than there is. Retry later.</source>
        <translation>Vimeo says that it has more of the video than there is. Retry later.</translation>
    </message>
    <message>
        <source>Vimeo takes the video's parts but stores nothing of them. Retry later.</source>
        <translation>Vimeo takes the video's parts but stores nothing of them. Retry later.</translation>
    </message>
    <message>
        <source>Vimeo's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>Vimeo's answer was not understood (HTTP status %1). Retry later.</translation>
    </message>
    <message>
        <source>Vimeo refused the video: %1 (code %2). Retry, or share it again.</source>
        <translation>Vimeo refused the video: %1 (code %2). Retry, or share it again.</translation>
    </message>
    <message>
        <source>Vimeo does not accept the sign-in (%1). Sign in again, check this device's clock, then retry.</source>
        <translation>Vimeo does not accept the sign-in (%1). Sign in again, check this device's clock, then retry.</translation>
    </message>
    <message>
        <source>Vimeo asks to send the video again.</source>
        <translation>Vimeo asks to send the video again.</translation>
    </message>
    <message>
        <source>The video is larger than the space that is free on Vimeo. Free space there, or share a smaller one.</source>
        <translation>The video is larger than the space that is free on Vimeo. Free space there, or share a smaller one.</translation>
    </message>
    <message>
        <source>The Vimeo account can take no more videos just now. Retry when its quota is renewed.</source>
        <translation>The Vimeo account can take no more videos just now. Retry when its quota is renewed.</translation>
    </message>
    <message>
        <source>title</source>
        <translation>title</translation>
    </message>
    <message>
        <source>description</source>
        <translation>description</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>tags</translation>
    </message>
    <message>
        <source>privacy setting</source>
        <translation>privacy setting</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Vimeo refused it: %1 (code %2). Retry.</source>
        <translation>Vimeo refused it: %1 (code %2). Retry.</translation>
    </message>
    <message>
        <source>The video is on Vimeo, but without its %1. %2</source>
        <translation>The video is on Vimeo, but without its %1. %2</translation>
    </message>
    <message>
        <source>Until then others may see the video.</source>
        <translation>Until then others may see the video.</translation>
    </message>
    <message>
        <source>The server that Vimeo named for this video cannot be reached: %1 Vimeo will be asked for another one.</source>
        <translation>The server that Vimeo named for this video cannot be reached: %1 Vimeo will be asked for another one.</translation>
    </message>
    <message>
        <source>Vimeo did not say whether it has the whole video: the video may be on Vimeo; look there, then retry or remove.</source>
        <translation>Vimeo did not say whether it has the whole video: the video may be on Vimeo; look there, then retry or remove.</translation>
    </message>
    <message>
        <source>The whole video is at Vimeo, but the upload queue cannot be written. Make room on the disk; it goes on by itself.</source>
        <translation>The whole video is at Vimeo, but the upload queue cannot be written. Make room on the disk; it goes on by itself.</translation>
    </message>
</context>
</TS>
