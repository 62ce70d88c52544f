<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>Flickr's answer is not understood.</source>
        <translation>La réponse de Flickr n’est pas comprise.</translation>
    </message>
    <message>
        <source>Flickr says: %1</source>
        <translation>Flickr indique : %1</translation>
    </message>
    <message>
        <source>The upload service cannot be watched: %1</source>
        <translation>Impossible de suivre le service d’envoi : %1</translation>
    </message>
    <message>
        <source>“%1” ends too early: it is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made.</source>
        <translation>« %1 » se termine trop tôt : le fichier est endommagé ou incomplet. Vérifiez qu’il se lit jusqu’au bout ou copiez-le de nouveau depuis l’original.</translation>
    </message>
    <message>
        <source>What ffmpeg says of “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>La sortie de ffmpeg pour « %1 » n’est pas comprise. Vérifiez le paquet « ffmpeg ».</translation>
    </message>
    <message>
        <source>Only MP4 files can be exported.</source>
        <translation>Seuls des fichiers MP4 peuvent être exportés.</translation>
    </message>
    <message>
        <source>There is no file to export “%1” to.</source>
        <translation>Il n’y a pas de fichier vers lequel exporter « %1 ».</translation>
    </message>
    <message>
        <source>Another export writes to %1. Try again.</source>
        <translation>Une autre exportation écrit dans %1. Réessayez.</translation>
    </message>
    <message>
        <source>“%1” was changed while it was exported. Try again when it is complete.</source>
        <translation>« %1 » a été modifié pendant l’exportation. Réessayez quand le fichier sera complet.</translation>
    </message>
    <message>
        <source>There is not enough disk space to export “%1”. Free some space and try again.</source>
        <translation>L’espace disque ne suffit pas pour exporter « %1 ». Libérez de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>the export was cancelled</source>
        <translation>l’exportation a été annulée</translation>
    </message>
    <message>
        <source>“%1” is not a video that can be read: it is damaged, incomplete or of an unknown format. Check that it plays, or choose another file.</source>
        <translation>« %1 » n’est pas une vidéo lisible : le fichier est endommagé, incomplet ou d’un format inconnu. Vérifiez qu’il se lit ou choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>“%1” could not be looked at (%2). Try again.</source>
        <translation>« %1 » n’a pas pu être examiné (%2). Réessayez.</translation>
    </message>
    <message>
        <source>The answer of ffprobe about “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>La réponse de ffprobe pour « %1 » n’est pas comprise. Vérifiez le paquet « ffmpeg ».</translation>
    </message>
    <message>
        <source>There are no pictures in “%1”. Choose a file with a video in it.</source>
        <translation>« %1 » ne contient pas d’images. Choisissez un fichier contenant une vidéo.</translation>
    </message>
    <message>
        <source>“%1” is 0 seconds long. Choose another file.</source>
        <translation>« %1 » dure 0 seconde. Choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>Videos cannot be read without the programs ffmpeg and ffprobe. Install the package “ffmpeg” and try again.</source>
        <translation>Les vidéos ne peuvent pas être lues sans les programmes ffmpeg et ffprobe. Installez le paquet « ffmpeg » et réessayez.</translation>
    </message>
    <message>
        <source>The program for videos cannot be started: %1</source>
        <translation>Le programme pour les vidéos ne peut pas être lancé : %1</translation>
    </message>
    <message>
        <source>The export of “%1” broke off (%2). Try again.</source>
        <translation>L’exportation de « %1 » s’est interrompue (%2). Réessayez.</translation>
    </message>
    <message>
        <source>The installed ffmpeg cannot write H.264 and AAC. Install a package “ffmpeg” with libx264 and try again.</source>
        <translation>La version installée de ffmpeg ne peut pas écrire en H.264 et AAC. Installez un paquet « ffmpeg » avec libx264 et réessayez.</translation>
    </message>
    <message>
        <source>“%1” is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made (%2).</source>
        <translation>« %1 » est endommagé ou incomplet. Vérifiez que le fichier se lit jusqu’au bout ou copiez-le de nouveau depuis l’original (%2).</translation>
    </message>
    <message>
        <source>Accounts of type "%1" cannot be stored.</source>
        <translation>Les comptes de type « %1 » ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>The user name is empty or holds control characters.</source>
        <translation>Le nom d’utilisateur est vide ou contient des caractères de contrôle.</translation>
    </message>
    <message>
        <source>A part of the credential is empty or holds control characters.</source>
        <translation>Une partie des identifiants est vide ou contient des caractères de contrôle.</translation>
    </message>
    <message>
        <source>"accounts" is not a list</source>
        <translation>« accounts » n’est pas une liste</translation>
    </message>
    <message>
        <source>The list of accounts was damaged and is kept as %1. Sign in again.</source>
        <translation>La liste des comptes était endommagée et est conservée dans %1. Connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>No account in %1 is understood. Mend the file, or sign in again.</source>
        <translation>Aucun compte dans %1 n’est compréhensible. Corrigez le fichier ou connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>There is no account "%1".</source>
        <translation>Il n’y a pas de compte « %1 ».</translation>
    </message>
    <message>
        <source>The credential file cannot be used: %1.</source>
        <translation>Le fichier d’identifiants ne peut pas être utilisé : %1.</translation>
    </message>
    <message>
        <source>"%1" is missing</source>
        <translation>« %1 » manque</translation>
    </message>
    <message>
        <source>"%1" is not a text</source>
        <translation>« %1 » n’est pas un texte</translation>
    </message>
    <message>
        <source>"%1" is empty</source>
        <translation>« %1 » est vide</translation>
    </message>
    <message>
        <source>"%1" holds control characters, such as a line break</source>
        <translation>« %1 » contient des caractères de contrôle, par exemple un saut de ligne</translation>
    </message>
    <message>
        <source>it is larger than %1 KB</source>
        <translation>il dépasse %1 Ko</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>ce n’est pas un objet JSON</translation>
    </message>
    <message>
        <source>The application's key is empty, too long, or holds spaces or special characters.</source>
        <translation>La clé de l’application est vide, trop longue ou contient des espaces ou des caractères spéciaux.</translation>
    </message>
    <message>
        <source>The application's secret is empty, too long, or holds spaces or special characters.</source>
        <translation>Le secret de l’application est vide, trop long ou contient des espaces ou des caractères spéciaux.</translation>
    </message>
    <message>
        <source>There is no such web service.</source>
        <translation>Ce service web n’existe pas.</translation>
    </message>
    <message>
        <source>en</source>
        <translation>fr</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>Trop long</translation>
    </message>
    <message>
        <source>This request is too long.</source>
        <translation>Cette requête est trop longue.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>There is nothing here.</source>
        <translation>Il n’y a rien ici.</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>Impossible</translation>
    </message>
    <message>
        <source>This page can only be opened.</source>
        <translation>Cette page ne peut être qu’ouverte.</translation>
    </message>
    <message>
        <source>Another sign-in</source>
        <translation>Une autre connexion</translation>
    </message>
    <message>
        <source>This page belongs to another sign-in. Go back to Korvane.</source>
        <translation>Cette page appartient à une autre connexion. Revenez à Korvane.</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>Connexion non établie</translation>
    </message>
    <message>
        <source>You can close this page and go back to Korvane.</source>
        <translation>Vous pouvez fermer cette page et revenir à Korvane.</translation>
    </message>
    <message>
        <source>Thank you</source>
        <translation>Merci</translation>
    </message>
    <message>
        <source>Add the account again.</source>
        <translation>Ajoutez de nouveau le compte.</translation>
    </message>
    <message>
        <source>Enter the keys again.</source>
        <translation>Saisissez de nouveau les clés.</translation>
    </message>
    <message>
        <source>The stored credential has no usable "%1". %2</source>
        <translation>Les identifiants enregistrés n’ont pas de « %1 » utilisable. %2</translation>
    </message>
    <message>
        <source>It is in the keyring, which KORVANE_SECRETS=file forbids to use. %1</source>
        <translation>Les identifiants sont dans le trousseau, que KORVANE_SECRETS=file interdit d’utiliser. %1</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it and try again.</source>
        <translation>Le trousseau est verrouillé. Déverrouillez-le et réessayez.</translation>
    </message>
    <message>
        <source>%1 belongs to another user. Move it away, then add the account again.</source>
        <translation>%1 appartient à un autre utilisateur. Déplacez ce fichier ailleurs, puis ajoutez de nouveau le compte.</translation>
    </message>
    <message>
        <source>The credential was not stored: the keyring does not answer. Try again, log out and in again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>Les identifiants n’ont pas été enregistrés : le trousseau ne répond pas. Réessayez, fermez puis rouvrez votre session, ou définissez KORVANE_SECRETS=file pour les conserver dans un fichier.</translation>
    </message>
    <message>
        <source>The keyring does not answer. Try again, or log out and in again.</source>
        <translation>Le trousseau ne répond pas. Réessayez, ou fermez puis rouvrez votre session.</translation>
    </message>
    <message>
        <source>The keyring does not hold it any more. %1</source>
        <translation>Le trousseau ne contient plus ces identifiants. %1</translation>
    </message>
    <message>
        <source>The keyring cannot be used: %1.</source>
        <translation>Le trousseau ne peut pas être utilisé : %1.</translation>
    </message>
    <message>
        <source>%1 does not hold it. %2</source>
        <translation>%1 ne contient pas ces identifiants. %2</translation>
    </message>
    <message>
        <source>The credential was not stored: %1. Unlock the keyring and try again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>Les identifiants n’ont pas été enregistrés : %1. Déverrouillez le trousseau et réessayez, ou définissez KORVANE_SECRETS=file pour les conserver dans un fichier.</translation>
    </message>
    <message>
        <source>the keyring gave no reason</source>
        <translation>le trousseau n’a pas donné de raison</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>il n’y a pas de bus de session</translation>
    </message>
    <message>
        <source>the keyring did not answer in time</source>
        <translation>le trousseau n’a pas répondu à temps</translation>
    </message>
    <message>
        <source>the keyring does not hold it</source>
        <translation>le trousseau ne les contient pas</translation>
    </message>
    <message>
        <source>the keyring is locked</source>
        <translation>le trousseau est verrouillé</translation>
    </message>
    <message>
        <source>the keyring gave no text</source>
        <translation>le trousseau n’a pas fourni de texte</translation>
    </message>
    <message>
        <source>there is no default keyring</source>
        <translation>il n’y a pas de trousseau par défaut</translation>
    </message>
    <message>
        <source>Korvane cannot wait for the browser here (%1). Sign in with a typed code instead.</source>
        <translation>Korvane ne peut pas attendre le navigateur ici (%1). Connectez-vous plutôt avec un code.</translation>
    </message>
    <message>
        <source>%1 does not confirm the way back to Korvane. Try again later.</source>
        <translation>%1 ne confirme pas le retour vers Korvane. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Korvane was not allowed to use the %1 account.</source>
        <translation>Korvane n’a pas été autorisé à utiliser le compte %1.</translation>
    </message>
    <message>
        <source>Sign in again.</source>
        <translation>Connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>The sign-in was cancelled.</source>
        <translation>La connexion a été annulée.</translation>
    </message>
    <message>
        <source>Nobody answered in time. Sign in again.</source>
        <translation>Personne n’a répondu à temps. Connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 took too long to answer. Try again later.</source>
        <translation>%1 a mis trop de temps à répondre. Réessayez plus tard.</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n jour</numerusform>
            <numerusform>%n jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n heure</numerusform>
            <numerusform>%n heures</numerusform>
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
        <translation>elle contient un élément en double</translation>
    </message>
    <message>
        <source>it holds no usable "%1"</source>
        <translation>elle ne contient pas de « %1 » utilisable</translation>
    </message>
    <message>
        <source>it names no user</source>
        <translation>elle ne nomme pas d’utilisateur</translation>
    </message>
    <message>
        <source>%1 is out of order just now (status %2). Try again later.</source>
        <translation>%1 est en panne pour l’instant (statut %2). Réessayez plus tard.</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>elle est trop longue</translation>
    </message>
    <message>
        <source>it is not HTTP</source>
        <translation>ce n’est pas du HTTP</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>statut %1</translation>
    </message>
    <message>
        <source>There is no network connection. Connect, then sign in again.</source>
        <translation>Il n’y a pas de connexion réseau. Connectez-vous au réseau, puis recommencez la connexion.</translation>
    </message>
    <message>
        <source>There is no safe connection to %1: %2 Check that date and time of this computer are right, then sign in again.</source>
        <translation>Il n’y a pas de connexion sûre à %1 : %2 Vérifiez la date et l’heure de cet ordinateur, puis connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2 Check the network connection, then sign in again.</source>
        <translation>%1 est injoignable : %2 Vérifiez la connexion réseau, puis connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 does not take the application's key, or the secret does not belong to it. Check both and sign in again.</source>
        <translation>%1 n’accepte pas la clé de l’application, ou le secret ne lui correspond pas. Vérifiez les deux et connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>The code is not the one that %1 gave.</source>
        <translation>Le code n’est pas celui que %1 a donné.</translation>
    </message>
    <message>
        <source>This sign-in has expired or was used already. Sign in again.</source>
        <translation>Cette connexion a expiré ou a déjà été utilisée. Connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in (%2). Try again later.</source>
        <translation>%1 a refusé la connexion (%2). Réessayez plus tard.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 fast. Set date and time right, then sign in again.</source>
        <translation>%1 a refusé la connexion, car l’horloge de cet ordinateur avance de %2. Réglez la date et l’heure, puis connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 slow. Set date and time right, then sign in again.</source>
        <translation>%1 a refusé la connexion, car l’horloge de cet ordinateur retarde de %2. Réglez la date et l’heure, puis connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is wrong. Set date and time right, then sign in again.</source>
        <translation>%1 a refusé la connexion, car l’horloge de cet ordinateur n’est pas à l’heure. Réglez la date et l’heure, puis connectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>%1 answered something that Korvane does not understand (%2). Try again later.</source>
        <translation>Korvane ne comprend pas la réponse de %1 (%2). Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The video “%1” cannot be opened (%2). Choose it again.</source>
        <translation>La vidéo « %1 » ne peut pas être ouverte (%2). Choisissez-la de nouveau.</translation>
    </message>
    <message>
        <source>no such asset</source>
        <translation>absente de la photothèque</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>code de sortie %1</translation>
    </message>
    <message>
        <source>stopped by signal %1</source>
        <translation>arrêté par le signal %1</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>durée trop longue</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>The operation could not be completed (%1, code %2).</source>
        <translation>L’opération n’a pas pu être terminée (%1, code %2).</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>le contenu est imbriqué trop profondément</translation>
    </message>
    <message>
        <source>it is not JSON at byte %1</source>
        <translation>JSON non valide à l’octet %1</translation>
    </message>
    <message>
        <source>it holds a number that is out of range</source>
        <translation>le contenu a un nombre hors limites</translation>
    </message>
    <message>
        <source>There is only the cellular network, which this upload may not use.</source>
        <translation>Seul le réseau mobile est disponible, et cet envoi ne doit pas l’utiliser.</translation>
    </message>
    <message>
        <source>The file became shorter while it was being sent.</source>
        <translation>Le fichier a raccourci pendant l’envoi.</translation>
    </message>
    <message>
        <source>The upload was stopped.</source>
        <translation>L’envoi a été arrêté.</translation>
    </message>
    <message>
        <source>There is no network connection.</source>
        <translation>Il n’y a pas de connexion réseau.</translation>
    </message>
    <message>
        <source>The proxy server was not found.</source>
        <translation>Le serveur proxy est introuvable.</translation>
    </message>
    <message>
        <source>No server with the name %1 was found.</source>
        <translation>Aucun serveur du nom de %1 n’a été trouvé.</translation>
    </message>
    <message>
        <source>No connection to %1 could be made.</source>
        <translation>Impossible d’établir une connexion avec %1.</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>La connexion a été interrompue.</translation>
    </message>
    <message>
        <source>A secure connection could not be made.</source>
        <translation>Impossible d’établir une connexion sécurisée.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.</source>
        <translation>Le certificat de %1 n’est pas fiable.</translation>
    </message>
    <message>
        <source>The web service did not respond in time.</source>
        <translation>Le service web n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>The web service answered before it had everything.</source>
        <translation>Le service web a répondu avant d’avoir tout reçu.</translation>
    </message>
    <message>
        <source>The file changed while it was being sent.</source>
        <translation>Le fichier a été modifié pendant l’envoi.</translation>
    </message>
    <message>
        <source>The web service's answer is too large.</source>
        <translation>La réponse du service web est trop volumineuse.</translation>
    </message>
    <message>
        <source>The web service does not answer in HTTP.</source>
        <translation>Le service web ne répond pas en HTTP.</translation>
    </message>
    <message>
        <source>The web service closed the connection.</source>
        <translation>Le service web a fermé la connexion.</translation>
    </message>
    <message>
        <source>the picture cannot be decoded (%1)</source>
        <translation>l’image ne peut pas être décodée (%1)</translation>
    </message>
    <message>
        <source>the picture's file</source>
        <translation>le fichier de l’image</translation>
    </message>
    <message>
        <source>it does not hold a JSON object</source>
        <translation>il ne contient pas d’objet JSON</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 n’a pas pu être écrit : %2</translation>
    </message>
    <message>
        <source>a value has a type that JSON has not</source>
        <translation>une valeur a un type que JSON n’a pas</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>Impossible d’écrire dans %1</translation>
    </message>
    <message>
        <source>Cannot copy the data to be shared</source>
        <translation>Impossible de copier les données à partager</translation>
    </message>
    <message>
        <source>the file has changed since it was chosen. Check that it is complete, then share it again.</source>
        <translation>le fichier a changé depuis qu’il a été choisi. Vérifiez qu’il est complet, puis partagez-le de nouveau.</translation>
    </message>
    <message>
        <source>Cannot open the data to be shared</source>
        <translation>Impossible d’ouvrir les données à partager</translation>
    </message>
    <message>
        <source>the file has %1, Flickr takes photos of up to 200 MB</source>
        <translation>le fichier fait %1, Flickr accepte les photos jusqu’à 200 Mo</translation>
    </message>
    <message>
        <source>the file is not a picture</source>
        <translation>le fichier n’est pas une image</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the file is a picture; share it to Flickr</source>
        <translation>le fichier est une image ; partagez-la sur Flickr</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1</source>
        <translation>Le bus de session est injoignable : %1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) cannot be reached: %1</source>
        <translation>Le service d’envoi (korvane-uploadd) est injoignable : %1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) does not answer. End it and try again: it goes on with its uploads when it is started anew.</source>
        <translation>Le service d’envoi (korvane-uploadd) ne répond pas. Arrêtez-le et réessayez : il reprendra ses envois à son prochain démarrage.</translation>
    </message>
    <message>
        <source>The upload service may have taken over what was shared, but its answer was lost. Look at the uploads before you share it again. (%1)</source>
        <translation>Le service d’envoi a peut-être pris en charge ce qui a été partagé, mais sa réponse s’est perdue. Consultez les envois avant de le partager à nouveau. (%1)</translation>
    </message>
    <message>
        <source>It was broken off.</source>
        <translation>L’opération a été interrompue.</translation>
    </message>
    <message>
        <source>The upload service that is running uses %1 %2, this program %3. End the service (it starts again by itself) or use the same settings.</source>
        <translation>Le service d’envoi en cours utilise %1 %2, ce programme %3. Arrêtez le service (il redémarre de lui-même) ou utilisez les mêmes réglages.</translation>
    </message>
    <message>
        <source>the spool folder</source>
        <translation>le dossier d’attente</translation>
    </message>
    <message>
        <source>the %1 host</source>
        <translation>l’hôte %1</translation>
    </message>
    <message>
        <source>the %1 folder</source>
        <translation>le dossier %1</translation>
    </message>
    <message>
        <source>There is no session bus, and the upload service %1 could not be started. Its log says why: %2</source>
        <translation>Il n’y a pas de bus de session, et le service d’envoi %1 n’a pas pu être démarré. Son journal en donne la raison : %2</translation>
    </message>
    <message>
        <source>Too much to share at once; share fewer items.</source>
        <translation>C’est trop à partager d’un coup ; partagez moins d’éléments.</translation>
    </message>
    <message>
        <source>"%1" holds a value of type %2, which cannot be shared.</source>
        <translation>« %1 » contient une valeur de type %2, qui ne peut pas être partagée.</translation>
    </message>
    <message>
        <source>"%1" holds a NUL character; remove it.</source>
        <translation>« %1 » contient un caractère NUL ; retirez-le.</translation>
    </message>
    <message>
        <source>The data of "%1" lies outside of the file that came with it.</source>
        <translation>Les données de « %1 » sont en dehors du fichier joint.</translation>
    </message>
    <message>
        <source>The file was empty. Check it and share it again.</source>
        <translation>Le fichier était vide. Vérifiez-le et partagez-le de nouveau.</translation>
    </message>
    <message>
        <source>Flickr takes JPEG, PNG, GIF and TIFF pictures.</source>
        <translation>Flickr accepte les images JPEG, PNG, GIF et TIFF.</translation>
    </message>
    <message>
        <source>Your upload limit is used up. Free space on Flickr, then retry.</source>
        <translation>Votre quota d’envoi est épuisé. Libérez de l’espace sur Flickr, puis réessayez.</translation>
    </message>
    <message>
        <source>The file is too large for Flickr.</source>
        <translation>Le fichier est trop volumineux pour Flickr.</translation>
    </message>
    <message>
        <source>Sign in again, then retry.</source>
        <translation>Connectez-vous de nouveau, puis réessayez.</translation>
    </message>
    <message>
        <source>Sign in again and allow uploads, then retry.</source>
        <translation>Connectez-vous de nouveau et autorisez les envois, puis réessayez.</translation>
    </message>
    <message>
        <source>Check the application's key, then retry.</source>
        <translation>Vérifiez la clé de l’application, puis réessayez.</translation>
    </message>
    <message>
        <source>Change what Flickr objects to and share it again, or retry.</source>
        <translation>Modifiez ce que Flickr refuse et partagez de nouveau, ou réessayez.</translation>
    </message>
    <message>
        <source>Flickr asks to send the request again.</source>
        <translation>Flickr demande de renvoyer la requête.</translation>
    </message>
    <message>
        <source>Flickr refused the request's time. Set this device's clock, then retry.</source>
        <translation>Flickr a refusé l’heure de la requête. Réglez l’horloge de cet appareil, puis réessayez.</translation>
    </message>
    <message>
        <source>Flickr does not accept the sign-in (%1). Sign in again, then retry.</source>
        <translation>Flickr n’accepte pas la connexion (%1). Connectez-vous de nouveau, puis réessayez.</translation>
    </message>
    <message>
        <source>Flickr is not available just now: %1</source>
        <translation>Flickr n’est pas disponible pour l’instant : %1</translation>
    </message>
    <message>
        <source>Flickr's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>La réponse de Flickr n’a pas été comprise (statut HTTP %1). Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Flickr refused the photo: %1 (code %2). %3</source>
        <translation>Flickr a refusé la photo : %1 (code %2). %3</translation>
    </message>
    <message>
        <source>The photo is on Flickr; adding it to its album is still to be done. %1</source>
        <translation>La photo est sur Flickr ; il reste à l’ajouter à son album. %1</translation>
    </message>
    <message>
        <source>The photo %1 is no longer in the photo library. Share it again from where it is now.</source>
        <translation>La photo %1 n’est plus dans la photothèque. Partagez-la de nouveau depuis son emplacement actuel.</translation>
    </message>
    <message>
        <source>There is no usable sign-in for the %1 account of %2, from which this was shared.</source>
        <translation>Il n’y a pas de connexion utilisable pour le compte %1 de %2, avec lequel ceci a été partagé.</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) shared to Flickr</source>
        <translation>
            <numerusform>%n photo partagée sur Flickr</numerusform>
            <numerusform>%n photos partagées sur Flickr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) shared to Vimeo</source>
        <translation>
            <numerusform>%n vidéo partagée sur Vimeo</numerusform>
            <numerusform>%n vidéos partagées sur Vimeo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) could not be shared</source>
        <translation>
            <numerusform>%n photo n’a pas pu être partagée</numerusform>
            <numerusform>%n photos n’ont pas pu être partagées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) could not be shared</source>
        <translation>
            <numerusform>%n vidéo n’a pas pu être partagée</numerusform>
            <numerusform>%n vidéos n’ont pas pu être partagées</numerusform>
        </translation>
    </message>
    <message>
        <source>Show uploads</source>
        <translation>Afficher les envois</translation>
    </message>
    <message>
        <source>The file %1 has changed since it was shared. Share it again.</source>
        <translation>Le fichier %1 a changé depuis son partage. Partagez-le de nouveau.</translation>
    </message>
    <message>
        <source>The file cannot be read (%1). Bring it back, then retry.</source>
        <translation>Le fichier ne peut pas être lu (%1). Remettez-le en place, puis réessayez.</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>Le fichier %1 est vide.</translation>
    </message>
    <message>
        <source>There is no room to convert %1 in %2.</source>
        <translation>Il n’y a pas assez de place dans %2 pour convertir %1.</translation>
    </message>
    <message>
        <source>%1 is a video. Share it to Vimeo.</source>
        <translation>%1 est une vidéo. Partagez-la sur Vimeo.</translation>
    </message>
    <message>
        <source>The post holds no %1. Share the %1 again.</source>
        <translation>La publication ne contient pas de %1. Partagez de nouveau la %1.</translation>
    </message>
    <message>
        <source>The %1's data is gone from this device. Share it again.</source>
        <translation>Les données de la %1 ne sont plus sur cet appareil. Partagez-la de nouveau.</translation>
    </message>
    <message>
        <source>The %1 is empty.</source>
        <translation>La %1 est vide.</translation>
    </message>
    <message>
        <source>The %1's data was damaged on this device. Share it again.</source>
        <translation>Les données de la %1 ont été endommagées sur cet appareil. Partagez-la de nouveau.</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>A video on Vimeo needs a title. Share it again with one.</source>
        <translation>Une vidéo sur Vimeo a besoin d’un titre. Partagez-la de nouveau avec un titre.</translation>
    </message>
    <message>
        <source>video</source>
        <translation>vidéo</translation>
    </message>
    <message>
        <source>dbus-daemon could not be started at %1</source>
        <translation>dbus-daemon n’a pas pu être démarré sur %1</translation>
    </message>
    <message>
        <source>The data to be shared cannot be stored in %1</source>
        <translation>Les données à partager ne peuvent pas être enregistrées dans %1</translation>
    </message>
    <message>
        <source>Vimeo's upload ticket cannot be used: %1. Retry later.</source>
        <translation>Le ticket d’envoi de Vimeo est inutilisable : %1. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>it has no id</source>
        <translation>il n’a pas d’identifiant</translation>
    </message>
    <message>
        <source>it does not say where to send the video</source>
        <translation>il n’indique pas où envoyer la vidéo</translation>
    </message>
    <message>
        <source>its address begins with %1:</source>
        <translation>son adresse commence par %1:</translation>
    </message>
    <message>
        <source>it points into the local network (%1)</source>
        <translation>il pointe vers le réseau local (%1)</translation>
    </message>
    <message>
        <source>The upload service ended unexpectedly each time it tried this upload, so it was set aside. Check the file, then retry or remove the upload.</source>
        <translation>Le service d’envoi s’est arrêté de façon inattendue à chaque tentative de cet envoi, qui a donc été mis de côté. Vérifiez le fichier, puis réessayez ou retirez l’envoi.</translation>
    </message>
    <message>
        <source>There is nothing to share.</source>
        <translation>Il n’y a rien à partager.</translation>
    </message>
    <message>
        <source>There is no %1 account.</source>
        <translation>Il n’y a pas de compte %1.</translation>
    </message>
    <message>
        <source>Given up after %1 hours of trying. Last: %2 Retry when it is better.</source>
        <translation>Abandonné après %1 heures de tentatives. Dernier problème : %2 Réessayez quand la situation se sera améliorée.</translation>
    </message>
    <message>
        <source>The upload queue cannot be written: %1</source>
        <translation>La file d’envoi ne peut pas être écrite : %1</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1 est injoignable : %2</translation>
    </message>
    <message>
        <source>The connection to %1 failed: %2</source>
        <translation>La connexion à %1 a échoué : %2</translation>
    </message>
    <message>
        <source>%1 is in trouble (HTTP status %2).</source>
        <translation>%1 rencontre des difficultés (statut HTTP %2).</translation>
    </message>
    <message>
        <source>Vimeo did not say how much of the video it has (HTTP status %1).</source>
        <translation>Vimeo n’a pas indiqué quelle part de la vidéo il a reçue (statut HTTP %1).</translation>
    </message>
    <message>
        <source>Vimeo says that it has more of the video than there is. Retry later.</source>
        <translation>Vimeo déclare avoir reçu plus que la taille de la vidéo. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Vimeo takes the video's parts but stores nothing of them. Retry later.</source>
        <translation>Vimeo accepte les parties de la vidéo mais n’en enregistre rien. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Vimeo's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>La réponse de Vimeo n’a pas été comprise (statut HTTP %1). Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Vimeo refused the video: %1 (code %2). Retry, or share it again.</source>
        <translation>Vimeo a refusé la vidéo : %1 (code %2). Réessayez ou partagez-la de nouveau.</translation>
    </message>
    <message>
        <source>Vimeo does not accept the sign-in (%1). Sign in again, check this device's clock, then retry.</source>
        <translation>Vimeo n’accepte pas la connexion (%1). Connectez-vous de nouveau, vérifiez l’horloge de cet appareil, puis réessayez.</translation>
    </message>
    <message>
        <source>Vimeo asks to send the video again.</source>
        <translation>Vimeo demande de renvoyer la vidéo.</translation>
    </message>
    <message>
        <source>The video is larger than the space that is free on Vimeo. Free space there, or share a smaller one.</source>
        <translation>La vidéo dépasse l’espace libre sur Vimeo. Libérez-y de l’espace ou partagez une vidéo plus petite.</translation>
    </message>
    <message>
        <source>The Vimeo account can take no more videos just now. Retry when its quota is renewed.</source>
        <translation>Le compte Vimeo ne peut plus accepter de vidéos pour l’instant. Réessayez quand son quota sera renouvelé.</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titre</translation>
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
        <translation>réglage de confidentialité</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Vimeo refused it: %1 (code %2). Retry.</source>
        <translation>Vimeo l’a refusé : %1 (code %2). Réessayez.</translation>
    </message>
    <message>
        <source>The video is on Vimeo, but without its %1. %2</source>
        <translation>La vidéo est sur Vimeo, mais il lui manque : %1. %2</translation>
    </message>
    <message>
        <source>Until then others may see the video.</source>
        <translation>D’ici là, d’autres personnes peuvent voir la vidéo.</translation>
    </message>
    <message>
        <source>The server that Vimeo named for this video cannot be reached: %1 Vimeo will be asked for another one.</source>
        <translation>Le serveur indiqué par Vimeo pour cette vidéo est injoignable : %1 Un autre sera demandé à Vimeo.</translation>
    </message>
    <message>
        <source>Vimeo did not say whether it has the whole video: the video may be on Vimeo; look there, then retry or remove.</source>
        <translation>Vimeo n’a pas indiqué s’il a reçu toute la vidéo. Elle est peut-être déjà sur Vimeo : vérifiez-y, puis réessayez ou retirez l’envoi.</translation>
    </message>
    <message>
        <source>The whole video is at Vimeo, but the upload queue cannot be written. Make room on the disk; it goes on by itself.</source>
        <translation>Toute la vidéo est chez Vimeo, mais la file d’envoi ne peut pas être écrite. Libérez de l’espace disque ; l’envoi reprendra de lui-même.</translation>
    </message>
</context>
</TS>
