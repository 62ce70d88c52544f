<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AccountRow</name>
    <message>
        <source>%1 account “%2”</source>
        <translation>%1 account “%2”</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”</source>
        <translation>Remove the %1 account “%2”</translation>
    </message>
</context>
<context>
    <name>HandingOver</name>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>Handing over to the upload service…</translation>
    </message>
</context>
<context>
    <name>KeysPanel</name>
    <message>
        <source>%1 application keys</source>
        <translation>%1 application keys</translation>
    </message>
    <message>
        <source>Register an application of your own with permission to upload, and copy its two keys here:</source>
        <translation>Register an application of your own with permission to upload, and copy its two keys here:</translation>
    </message>
    <message>
        <source>Open that page</source>
        <translation>Open that page</translation>
    </message>
    <message>
        <source>Asking the keyring…</source>
        <translation>Asking the keyring…</translation>
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
        <translation>Consumer key: %1</translation>
    </message>
    <message>
        <source>The consumer secret is stored.</source>
        <translation>The consumer secret is stored.</translation>
    </message>
    <message>
        <source>Store the keys</source>
        <translation>Store the keys</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Other keys…</source>
        <translation>Other keys…</translation>
    </message>
    <message>
        <source>Remove the keys</source>
        <translation>Remove the keys</translation>
    </message>
    <message>
        <source>The secret is in a file that only you can read, since no keyring could be used.</source>
        <translation>The secret is in a file that only you can read, since no keyring could be used.</translation>
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
    <message>
        <source>The list could not be loaded. %1</source>
        <translation>The list could not be loaded. %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
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
    <message numerus="yes">
        <source>%n video(s)</source>
        <translation>
            <numerusform>%n video</numerusform>
            <numerusform>%n videos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Beginning</source>
        <translation>Beginning</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 percent</translation>
    </message>
</context>
<context>
    <name>ServiceSettings</name>
    <message>
        <source>%1 accounts</source>
        <translation>%1 accounts</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it waits for a new sign-in.</source>
        <translation>Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it waits for a new sign-in.</translation>
    </message>
    <message>
        <source>There is no account yet.</source>
        <translation>There is no account yet.</translation>
    </message>
    <message>
        <source>What you share goes out with the account that is checked.</source>
        <translation>What you share goes out with the account that is checked.</translation>
    </message>
    <message>
        <source>Remove the keys of your application at %1? Accounts that are added already stay; to add another, you need the keys again.</source>
        <translation>Remove the keys of your application at %1? Accounts that are added already stay; to add another, you need the keys again.</translation>
    </message>
</context>
<context>
    <name>SettingsAlert</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Uploads</source>
        <translation>Uploads</translation>
    </message>
    <message>
        <source>Photos at a time</source>
        <translation>Photos at a time</translation>
    </message>
    <message>
        <source>Videos at a time</source>
        <translation>Videos at a time</translation>
    </message>
    <message>
        <source>Upload over the cellular network</source>
        <translation>Upload over the cellular network</translation>
    </message>
    <message>
        <source>Largest edge of newly encoded pictures</source>
        <translation>Largest edge of newly encoded pictures</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>As it is</translation>
    </message>
    <message>
        <source>%L1 pixels</source>
        <translation>%L1 pixels</translation>
    </message>
    <message>
        <source>JPEG, PNG and GIF files always go out as they are. Other pictures, and those sent without metadata, are newly encoded.</source>
        <translation>JPEG, PNG and GIF files always go out as they are. Other pictures, and those sent without metadata, are newly encoded.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Keep</translation>
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
        <source>Title (optional)</source>
        <translation>Title (optional)</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>That does not fit</source>
        <translation>That does not fit</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Full</translation>
    </message>
    <message>
        <source>Almost full</source>
        <translation>Almost full</translation>
    </message>
    <message numerus="yes">
        <source>room for %n more byte(s)</source>
        <translation>
            <numerusform>room for %n more byte</numerusform>
            <numerusform>room for %n more bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetNotices</name>
    <message>
        <source>Leave them out</source>
        <translation>Leave them out</translation>
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
</context>
<context>
    <name>SignInPanel</name>
    <message>
        <source>The account “%1” is ready.</source>
        <translation>The account “%1” is ready.</translation>
    </message>
    <message>
        <source>Add an account…</source>
        <translation>Add an account…</translation>
    </message>
    <message>
        <source>Add with a code…</source>
        <translation>Add with a code…</translation>
    </message>
    <message>
        <source>For a browser on another device: it shows a code that you type here.</source>
        <translation>For a browser on another device: it shows a code that you type here.</translation>
    </message>
    <message>
        <source>To sign in, Korvane first needs the keys of your own application, below.</source>
        <translation>To sign in, Korvane first needs the keys of your own application, below.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Asking %1…</translation>
    </message>
    <message>
        <source>Storing the account…</source>
        <translation>Storing the account…</translation>
    </message>
    <message>
        <source>Open this address, also on another device, allow Korvane to upload, and type the code that is shown:</source>
        <translation>Open this address, also on another device, allow Korvane to upload, and type the code that is shown:</translation>
    </message>
    <message>
        <source>Allow Korvane to upload in the browser that has opened. If none has, open this address on this device:</source>
        <translation>Allow Korvane to upload in the browser that has opened. If none has, open this address on this device:</translation>
    </message>
    <message>
        <source>Address of the sign-in page</source>
        <translation>Address of the sign-in page</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Use this code</source>
        <translation>Use this code</translation>
    </message>
    <message>
        <source>Open the page again</source>
        <translation>Open the page again</translation>
    </message>
    <message>
        <source>Cancel the sign-in</source>
        <translation>Cancel the sign-in</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>Add…</source>
        <translation>Add…</translation>
    </message>
</context>
<context>
    <name>UploadRow</name>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Retry “%1”</source>
        <translation>Retry “%1”</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Remove “%1”</translation>
    </message>
</context>
<context>
    <name>UploadWords</name>
    <message>
        <source>Waiting for an account</source>
        <translation>Waiting for an account</translation>
    </message>
    <message>
        <source>Sign in on Korvane's settings page.</source>
        <translation>Sign in on Korvane's settings page.</translation>
    </message>
    <message>
        <source>Waiting for the network</source>
        <translation>Waiting for the network</translation>
    </message>
    <message>
        <source>Waiting for the next try</source>
        <translation>Waiting for the next try</translation>
    </message>
    <message>
        <source>%1, at the latest %2</source>
        <translation>%1, at the latest %2</translation>
    </message>
    <message>
        <source>Video without a title</source>
        <translation>Video without a title</translation>
    </message>
    <message>
        <source>Photo without a title</source>
        <translation>Photo without a title</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploading</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Shared</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Queued</source>
        <translation>Queued</translation>
    </message>
    <message>
        <source>No reason was given.</source>
        <translation>No reason was given.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>a few seconds left</translation>
    </message>
    <message numerus="yes">
        <source>about %n s left</source>
        <translation>
            <numerusform>about %n s left</numerusform>
            <numerusform>about %n s left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n min left</source>
        <translation>
            <numerusform>about %n min left</numerusform>
            <numerusform>about %n min left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n h left</source>
        <translation>
            <numerusform>about %n h left</numerusform>
            <numerusform>about %n h left</numerusform>
        </translation>
    </message>
    <message>
        <source>more than a day left</source>
        <translation>more than a day left</translation>
    </message>
    <message>
        <source>Nobody knows whether “%1” has arrived. Look on %2 first. Removed here, it is not tried again.</source>
        <translation>Nobody knows whether “%1” has arrived. Look on %2 first. Removed here, it is not tried again.</translation>
    </message>
    <message>
        <source>“%1” has not arrived on %2 yet. Removed here, it is not uploaded.</source>
        <translation>“%1” has not arrived on %2 yet. Removed here, it is not uploaded.</translation>
    </message>
</context>
<context>
    <name>UploadsHead</name>
    <message>
        <source>Asking the upload service…</source>
        <translation>Asking the upload service…</translation>
    </message>
    <message>
        <source>The upload service does not answer just now. Uploads it has taken over are not lost.</source>
        <translation>The upload service does not answer just now. Uploads it has taken over are not lost.</translation>
    </message>
    <message>
        <source>The upload service has ended, since there is nothing left to upload.</source>
        <translation>The upload service has ended, since there is nothing left to upload.</translation>
    </message>
    <message>
        <source>The upload service cannot be reached. It is asked again by and by.</source>
        <translation>The upload service cannot be reached. It is asked again by and by.</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Under way</source>
        <translation>Under way</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Shared</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>Ask again</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dismiss</translation>
    </message>
    <message>
        <source>Uploads are paused.</source>
        <translation>Uploads are paused.</translation>
    </message>
    <message>
        <source>Resume uploads</source>
        <translation>Resume uploads</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Clear what is shared</source>
        <translation>Clear what is shared</translation>
    </message>
    <message>
        <source>There is nothing of this kind.</source>
        <translation>There is nothing of this kind.</translation>
    </message>
    <message>
        <source>Nothing is being uploaded. What you share shows up here.</source>
        <translation>Nothing is being uploaded. What you share shows up here.</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Retry all</translation>
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
        <translation>Close</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Keep</translation>
    </message>
</context>
<context>
    <name>korvane::AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>only one video at a time can be shared to Vimeo</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more file(s)</source>
        <translation>
            <numerusform>and %n more file</numerusform>
            <numerusform>and %n more files</numerusform>
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
        <translation>The setting could not be written. It holds until this window is closed.</translation>
    </message>
</context>
<context>
    <name>korvane::SheetModel</name>
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
    <message>
        <source>Another account is in use now. Look at what is chosen here, then press Post again.</source>
        <translation>Another account is in use now. Look at what is chosen here, then press Post again.</translation>
    </message>
</context>
<context>
    <name>korvane::SignInModel</name>
    <message>
        <source>The browser did not open. Open the address below yourself.</source>
        <translation>The browser did not open. Open the address below yourself.</translation>
    </message>
</context>
</TS>
