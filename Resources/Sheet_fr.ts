<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AccountRow</name>
    <message>
        <source>%1 account “%2”</source>
        <translation>Compte %1 «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”</source>
        <translation>Retirer le compte %1 «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>HandingOver</name>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>Remise au service d’envoi…</translation>
    </message>
</context>
<context>
    <name>KeysPanel</name>
    <message>
        <source>%1 application keys</source>
        <translation>Clés d’application pour %1</translation>
    </message>
    <message>
        <source>Register an application of your own with permission to upload, and copy its two keys here:</source>
        <translation>Enregistrez votre propre application avec le droit de téléverser des fichiers, puis copiez ici ses deux clés&#xa0;:</translation>
    </message>
    <message>
        <source>Open that page</source>
        <translation>Ouvrir cette page</translation>
    </message>
    <message>
        <source>Asking the keyring…</source>
        <translation>Accès au trousseau…</translation>
    </message>
    <message>
        <source>Consumer key</source>
        <translation>Consumer key</translation>
    </message>
    <message>
        <source>Consumer secret</source>
        <translation>Consumer secret</translation>
    </message>
    <message>
        <source>Consumer key: %1</source>
        <translation>Consumer key&#xa0;: %1</translation>
    </message>
    <message>
        <source>The consumer secret is stored.</source>
        <translation>Le consumer secret est enregistré.</translation>
    </message>
    <message>
        <source>Store the keys</source>
        <translation>Enregistrer les clés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Other keys…</source>
        <translation>Autres clés…</translation>
    </message>
    <message>
        <source>Remove the keys</source>
        <translation>Retirer les clés</translation>
    </message>
    <message>
        <source>The secret is in a file that only you can read, since no keyring could be used.</source>
        <translation>Le secret est dans un fichier que vous seul pouvez lire, car aucun trousseau n’a pu être utilisé.</translation>
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
    <message>
        <source>The list could not be loaded. %1</source>
        <translation>La liste n’a pas pu être chargée. %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
</context>
<context>
    <name>Previews</name>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 sur %2&#xa0;: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s)</source>
        <translation>
            <numerusform>%n vidéo</numerusform>
            <numerusform>%n vidéos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Beginning</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 pour cent</translation>
    </message>
</context>
<context>
    <name>ServiceSettings</name>
    <message>
        <source>%1 accounts</source>
        <translation>Comptes %1</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it waits for a new sign-in.</source>
        <translation>Retirer le compte %1 «&#xa0;%2&#xa0;»&#x202f;? Ce qui est déjà partagé avec lui y reste&#x202f;; ce qui reste à envoyer attendra une nouvelle connexion.</translation>
    </message>
    <message>
        <source>There is no account yet.</source>
        <translation>Il n’y a pas encore de compte.</translation>
    </message>
    <message>
        <source>What you share goes out with the account that is checked.</source>
        <translation>Vos partages utilisent le compte coché.</translation>
    </message>
    <message>
        <source>Remove the keys of your application at %1? Accounts that are added already stay; to add another, you need the keys again.</source>
        <translation>Retirer les clés de votre application chez %1&#x202f;? Les comptes déjà ajoutés restent&#x202f;; pour en ajouter un autre, vous aurez de nouveau besoin des clés.</translation>
    </message>
</context>
<context>
    <name>SettingsAlert</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Uploads</source>
        <translation>Envois</translation>
    </message>
    <message>
        <source>Photos at a time</source>
        <translation>Envois de photos simultanés</translation>
    </message>
    <message>
        <source>Videos at a time</source>
        <translation>Envois de vidéos simultanés</translation>
    </message>
    <message>
        <source>Upload over the cellular network</source>
        <translation>Envoyer par le réseau mobile</translation>
    </message>
    <message>
        <source>Largest edge of newly encoded pictures</source>
        <translation>Plus grand côté des images réencodées</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>%L1 pixels</source>
        <translation>%L1 pixels</translation>
    </message>
    <message>
        <source>JPEG, PNG and GIF files always go out as they are. Other pictures, and those sent without metadata, are newly encoded.</source>
        <translation>Les fichiers JPEG, PNG et GIF sont toujours envoyés sans modification. Les autres images, et celles envoyées sans métadonnées, sont réencodées.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>this is not on this device; copy it here, or open its folder in the file manager first</source>
        <translation>ce fichier n’est pas sur cet appareil&#x202f;; copiez-le ici ou ouvrez d’abord son dossier dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>this is a folder; choose the files in it</source>
        <translation>c’est un dossier&#x202f;; choisissez les fichiers qu’il contient</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
</context>
<context>
    <name>SheetBody</name>
    <message>
        <source>Title (optional)</source>
        <translation>Titre (facultatif)</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>That does not fit</source>
        <translation>C’est trop long</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Limite atteinte</translation>
    </message>
    <message>
        <source>Almost full</source>
        <translation>Limite presque atteinte</translation>
    </message>
    <message numerus="yes">
        <source>room for %n more byte(s)</source>
        <translation>
            <numerusform>encore %n octet possible</numerusform>
            <numerusform>encore %n octets possibles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetNotices</name>
    <message>
        <source>Leave them out</source>
        <translation>Les laisser de côté</translation>
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
</context>
<context>
    <name>SignInPanel</name>
    <message>
        <source>The account “%1” is ready.</source>
        <translation>Le compte «&#xa0;%1&#xa0;» est prêt.</translation>
    </message>
    <message>
        <source>Add an account…</source>
        <translation>Ajouter un compte…</translation>
    </message>
    <message>
        <source>Add with a code…</source>
        <translation>Ajouter avec un code…</translation>
    </message>
    <message>
        <source>For a browser on another device: it shows a code that you type here.</source>
        <translation>Pour un navigateur sur un autre appareil&#xa0;: il affiche un code à saisir ici.</translation>
    </message>
    <message>
        <source>To sign in, Korvane first needs the keys of your own application, below.</source>
        <translation>Pour la connexion, Korvane a d’abord besoin des clés de votre application, ci-dessous.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <source>Storing the account…</source>
        <translation>Enregistrement du compte…</translation>
    </message>
    <message>
        <source>Open this address, also on another device, allow Korvane to upload, and type the code that is shown:</source>
        <translation>Ouvrez cette adresse, même sur un autre appareil, autorisez Korvane à téléverser des fichiers, puis saisissez le code affiché&#xa0;:</translation>
    </message>
    <message>
        <source>Allow Korvane to upload in the browser that has opened. If none has, open this address on this device:</source>
        <translation>Autorisez Korvane à téléverser des fichiers dans le navigateur qui s’est ouvert. S’il ne s’est pas ouvert, ouvrez cette adresse sur cet appareil&#xa0;:</translation>
    </message>
    <message>
        <source>Address of the sign-in page</source>
        <translation>Adresse de la page de connexion</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Use this code</source>
        <translation>Utiliser ce code</translation>
    </message>
    <message>
        <source>Open the page again</source>
        <translation>Rouvrir la page</translation>
    </message>
    <message>
        <source>Cancel the sign-in</source>
        <translation>Annuler la connexion</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
</context>
<context>
    <name>UploadRow</name>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Retry “%1”</source>
        <translation>Réessayer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Retirer «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>UploadWords</name>
    <message>
        <source>Waiting for an account</source>
        <translation>En attente d’un compte</translation>
    </message>
    <message>
        <source>Sign in on Korvane's settings page.</source>
        <translation>Connectez-vous dans les réglages de Korvane.</translation>
    </message>
    <message>
        <source>Waiting for the network</source>
        <translation>En attente du réseau</translation>
    </message>
    <message>
        <source>Waiting for the next try</source>
        <translation>En attente de la prochaine tentative</translation>
    </message>
    <message>
        <source>%1, at the latest %2</source>
        <translation>%1, au plus tard %2</translation>
    </message>
    <message>
        <source>Video without a title</source>
        <translation>Vidéo sans titre</translation>
    </message>
    <message>
        <source>Photo without a title</source>
        <translation>Photo sans titre</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Envoi en cours</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Partagé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Queued</source>
        <translation>En file d’attente</translation>
    </message>
    <message>
        <source>No reason was given.</source>
        <translation>Aucune raison n’a été donnée.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>encore quelques secondes</translation>
    </message>
    <message numerus="yes">
        <source>about %n s left</source>
        <translation>
            <numerusform>encore environ %n s</numerusform>
            <numerusform>encore environ %n s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n min left</source>
        <translation>
            <numerusform>encore environ %n min</numerusform>
            <numerusform>encore environ %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n h left</source>
        <translation>
            <numerusform>encore environ %n h</numerusform>
            <numerusform>encore environ %n h</numerusform>
        </translation>
    </message>
    <message>
        <source>more than a day left</source>
        <translation>encore plus d’un jour</translation>
    </message>
    <message>
        <source>Nobody knows whether “%1” has arrived. Look on %2 first. Removed here, it is not tried again.</source>
        <translation>On ignore si «&#xa0;%1&#xa0;» est arrivé. Vérifiez d’abord sur %2. Si vous retirez cet envoi, il sera abandonné.</translation>
    </message>
    <message>
        <source>“%1” has not arrived on %2 yet. Removed here, it is not uploaded.</source>
        <translation>L’envoi de «&#xa0;%1&#xa0;» vers %2 n’est pas terminé. Si vous le retirez, il sera abandonné.</translation>
    </message>
</context>
<context>
    <name>UploadsHead</name>
    <message>
        <source>Asking the upload service…</source>
        <translation>Connexion au service d’envoi…</translation>
    </message>
    <message>
        <source>The upload service does not answer just now. Uploads it has taken over are not lost.</source>
        <translation>Le service d’envoi ne répond pas pour l’instant. Les envois qu’il a pris en charge ne sont pas perdus.</translation>
    </message>
    <message>
        <source>The upload service has ended, since there is nothing left to upload.</source>
        <translation>Le service d’envoi s’est arrêté, car il n’y a plus rien à envoyer.</translation>
    </message>
    <message>
        <source>The upload service cannot be reached. It is asked again by and by.</source>
        <translation>Le service d’envoi est injoignable. Une nouvelle tentative sera faite.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Under way</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échecs</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Partagés</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Uploads are paused.</source>
        <translation>Les envois sont en pause.</translation>
    </message>
    <message>
        <source>Resume uploads</source>
        <translation>Reprendre les envois</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Clear what is shared</source>
        <translation>Effacer les éléments partagés</translation>
    </message>
    <message>
        <source>There is nothing of this kind.</source>
        <translation>Aucun élément de ce type</translation>
    </message>
    <message>
        <source>Nothing is being uploaded. What you share shows up here.</source>
        <translation>Rien n’est en cours d’envoi. Ce que vous partagez apparaît ici.</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Tout réessayer</translation>
    </message>
</context>
<context>
    <name>UploadsPage</name>
    <message>
        <source>Uploads</source>
        <translation>Envois</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
</context>
<context>
    <name>korvane::AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>une seule vidéo à la fois peut être partagée sur Vimeo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more file(s)</source>
        <translation>
            <numerusform>et %n autre fichier</numerusform>
            <numerusform>et %n autres fichiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>korvane::ServiceAccess</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>korvane::Settings</name>
    <message>
        <source>The setting could not be written. It holds until this window is closed.</source>
        <translation>Le réglage n’a pas pu être enregistré. Il reste valable jusqu’à la fermeture de cette fenêtre.</translation>
    </message>
</context>
<context>
    <name>korvane::SheetModel</name>
    <message>
        <source>No reason was given.</source>
        <translation>Aucune raison n’a été donnée.</translation>
    </message>
    <message>
        <source>Nothing was shared. %1
What you entered is still here: press Post to try again.</source>
        <translation>Rien n’a été partagé. %1
Votre saisie est toujours là&#xa0;: appuyez sur «&#xa0;Publier&#xa0;» pour réessayer.</translation>
    </message>
    <message>
        <source>Another account is in use now. Look at what is chosen here, then press Post again.</source>
        <translation>Un autre compte est utilisé à présent. Vérifiez ce qui est choisi ici, puis appuyez de nouveau sur «&#xa0;Publier&#xa0;».</translation>
    </message>
</context>
<context>
    <name>korvane::SignInModel</name>
    <message>
        <source>The browser did not open. Open the address below yourself.</source>
        <translation>Le navigateur ne s’est pas ouvert. Ouvrez vous-même l’adresse ci-dessous.</translation>
    </message>
</context>
</TS>
