<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AccountRow</name>
    <message>
        <source>%1 account “%2”</source>
        <translation>%1アカウント「%2」</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”</source>
        <translation>%1アカウント「%2」を削除</translation>
    </message>
</context>
<context>
    <name>HandingOver</name>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>アップロードサービスに渡しています…</translation>
    </message>
</context>
<context>
    <name>KeysPanel</name>
    <message>
        <source>%1 application keys</source>
        <translation>%1のアプリケーションキー</translation>
    </message>
    <message>
        <source>Register an application of your own with permission to upload, and copy its two keys here:</source>
        <translation>アップロード権限のある自分用のアプリケーションを登録し、2つのキーをここにコピーしてください：</translation>
    </message>
    <message>
        <source>Open that page</source>
        <translation>そのページを開く</translation>
    </message>
    <message>
        <source>Asking the keyring…</source>
        <translation>キーリングに問い合わせています…</translation>
    </message>
    <message>
        <source>Consumer key</source>
        <translation>コンシューマーキー</translation>
    </message>
    <message>
        <source>Consumer secret</source>
        <translation>コンシューマーシークレット</translation>
    </message>
    <message>
        <source>Consumer key: %1</source>
        <translation>コンシューマーキー：%1</translation>
    </message>
    <message>
        <source>The consumer secret is stored.</source>
        <translation>コンシューマーシークレットは保存されています。</translation>
    </message>
    <message>
        <source>Store the keys</source>
        <translation>キーを保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Other keys…</source>
        <translation>別のキー…</translation>
    </message>
    <message>
        <source>Remove the keys</source>
        <translation>キーを削除</translation>
    </message>
    <message>
        <source>The secret is in a file that only you can read, since no keyring could be used.</source>
        <translation>キーリングを使用できなかったため、シークレットは自分だけが読めるファイルに保存されています。</translation>
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
        <translation>戻る</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>The list could not be loaded. %1</source>
        <translation>一覧を読み込めませんでした。%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>Previews</name>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 / %2件目：%3</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>写真%n枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s)</source>
        <translation>
            <numerusform>動画%n本</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>Beginning</source>
        <translation>開始中</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1パーセント</translation>
    </message>
</context>
<context>
    <name>ServiceSettings</name>
    <message>
        <source>%1 accounts</source>
        <translation>%1のアカウント</translation>
    </message>
    <message>
        <source>Remove the %1 account “%2”? What is shared with it already stays there; what is still to be uploaded with it waits for a new sign-in.</source>
        <translation>%1アカウント「%2」を削除しますか？共有済みのものは残りますが、これからアップロードするものは再度のサインインを待ちます。</translation>
    </message>
    <message>
        <source>There is no account yet.</source>
        <translation>アカウントはまだありません。</translation>
    </message>
    <message>
        <source>What you share goes out with the account that is checked.</source>
        <translation>共有にはチェックの付いたアカウントが使われます。</translation>
    </message>
    <message>
        <source>Remove the keys of your application at %1? Accounts that are added already stay; to add another, you need the keys again.</source>
        <translation>%1のアプリケーションのキーを削除しますか？追加済みのアカウントは残りますが、別のアカウントを追加するにはもう一度キーが必要です。</translation>
    </message>
</context>
<context>
    <name>SettingsAlert</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>あとで</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Uploads</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Photos at a time</source>
        <translation>同時にアップロードする写真の枚数</translation>
    </message>
    <message>
        <source>Videos at a time</source>
        <translation>同時にアップロードする動画の本数</translation>
    </message>
    <message>
        <source>Upload over the cellular network</source>
        <translation>モバイル回線でアップロードする</translation>
    </message>
    <message>
        <source>Largest edge of newly encoded pictures</source>
        <translation>再エンコードする画像の長辺</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>そのまま</translation>
    </message>
    <message>
        <source>%L1 pixels</source>
        <translation>%L1ピクセル</translation>
    </message>
    <message>
        <source>JPEG, PNG and GIF files always go out as they are. Other pictures, and those sent without metadata, are newly encoded.</source>
        <translation>JPEG、PNG、GIFのファイルは常にそのままアップロードされます。その他の画像と、メタデータなしで送る画像は再エンコードされます。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>this is not on this device; copy it here, or open its folder in the file manager first</source>
        <translation>このデバイスにありません。ここにコピーするか、先にファイルマネージャーでフォルダを開いてください</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>このファイルはありません</translation>
    </message>
    <message>
        <source>this is a folder; choose the files in it</source>
        <translation>これはフォルダです。中のファイルを選んでください</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>これは通常のファイルではありません</translation>
    </message>
</context>
<context>
    <name>SheetBody</name>
    <message>
        <source>Title (optional)</source>
        <translation>タイトル（任意）</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>That does not fit</source>
        <translation>長すぎて入りません</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>上限に達しました</translation>
    </message>
    <message>
        <source>Almost full</source>
        <translation>まもなく上限です</translation>
    </message>
    <message numerus="yes">
        <source>room for %n more byte(s)</source>
        <translation>
            <numerusform>あと%nバイト入力できます</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetNotices</name>
    <message>
        <source>Leave them out</source>
        <translation>これらを除く</translation>
    </message>
</context>
<context>
    <name>SheetPage</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Post</source>
        <translation>投稿</translation>
    </message>
</context>
<context>
    <name>SignInPanel</name>
    <message>
        <source>The account “%1” is ready.</source>
        <translation>アカウント「%1」が使えるようになりました。</translation>
    </message>
    <message>
        <source>Add an account…</source>
        <translation>アカウントを追加…</translation>
    </message>
    <message>
        <source>Add with a code…</source>
        <translation>コードで追加…</translation>
    </message>
    <message>
        <source>For a browser on another device: it shows a code that you type here.</source>
        <translation>別のデバイスのブラウザー用です。表示されたコードをここに入力します。</translation>
    </message>
    <message>
        <source>To sign in, Korvane first needs the keys of your own application, below.</source>
        <translation>サインインするには、まず下で自分のアプリケーションのキーを登録してください。</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>%1に問い合わせています…</translation>
    </message>
    <message>
        <source>Storing the account…</source>
        <translation>アカウントを保存しています…</translation>
    </message>
    <message>
        <source>Open this address, also on another device, allow Korvane to upload, and type the code that is shown:</source>
        <translation>このアドレスを開き（別のデバイスでもかまいません）、Korvaneのアップロードを許可して、表示されたコードを入力してください：</translation>
    </message>
    <message>
        <source>Allow Korvane to upload in the browser that has opened. If none has, open this address on this device:</source>
        <translation>開いたブラウザーでKorvaneのアップロードを許可してください。開かない場合は、このデバイスでこのアドレスを開いてください：</translation>
    </message>
    <message>
        <source>Address of the sign-in page</source>
        <translation>サインインページのアドレス</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>コード</translation>
    </message>
    <message>
        <source>Use this code</source>
        <translation>このコードを使う</translation>
    </message>
    <message>
        <source>Open the page again</source>
        <translation>ページをもう一度開く</translation>
    </message>
    <message>
        <source>Cancel the sign-in</source>
        <translation>サインインをキャンセル</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
</context>
<context>
    <name>UploadRow</name>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Retry “%1”</source>
        <translation>「%1」を再試行</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>「%1」を削除</translation>
    </message>
</context>
<context>
    <name>UploadWords</name>
    <message>
        <source>Waiting for an account</source>
        <translation>アカウント待ち</translation>
    </message>
    <message>
        <source>Sign in on Korvane's settings page.</source>
        <translation>Korvaneの設定でサインインしてください。</translation>
    </message>
    <message>
        <source>Waiting for the network</source>
        <translation>ネットワーク待ち</translation>
    </message>
    <message>
        <source>Waiting for the next try</source>
        <translation>再試行待ち</translation>
    </message>
    <message>
        <source>%1, at the latest %2</source>
        <translation>%1（遅くとも%2）</translation>
    </message>
    <message>
        <source>Video without a title</source>
        <translation>無題の動画</translation>
    </message>
    <message>
        <source>Photo without a title</source>
        <translation>無題の写真</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>アップロード中</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>共有済み</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Queued</source>
        <translation>順番待ち</translation>
    </message>
    <message>
        <source>No reason was given.</source>
        <translation>理由は示されませんでした。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>残り数秒</translation>
    </message>
    <message numerus="yes">
        <source>about %n s left</source>
        <translation>
            <numerusform>残り約%n秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n min left</source>
        <translation>
            <numerusform>残り約%n分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n h left</source>
        <translation>
            <numerusform>残り約%n時間</numerusform>
        </translation>
    </message>
    <message>
        <source>more than a day left</source>
        <translation>残り1日以上</translation>
    </message>
    <message>
        <source>Nobody knows whether “%1” has arrived. Look on %2 first. Removed here, it is not tried again.</source>
        <translation>「%1」が届いたかどうか確認できません。まず%2でご確認ください。ここで削除すると再試行されません。</translation>
    </message>
    <message>
        <source>“%1” has not arrived on %2 yet. Removed here, it is not uploaded.</source>
        <translation>「%1」はまだ%2に届いていません。ここで削除するとアップロードされません。</translation>
    </message>
</context>
<context>
    <name>UploadsHead</name>
    <message>
        <source>Asking the upload service…</source>
        <translation>アップロードサービスに問い合わせています…</translation>
    </message>
    <message>
        <source>The upload service does not answer just now. Uploads it has taken over are not lost.</source>
        <translation>アップロードサービスが現在応答していません。受け付け済みのアップロードは失われません。</translation>
    </message>
    <message>
        <source>The upload service has ended, since there is nothing left to upload.</source>
        <translation>アップロードするものがなくなったため、アップロードサービスは終了しました。</translation>
    </message>
    <message>
        <source>The upload service cannot be reached. It is asked again by and by.</source>
        <translation>アップロードサービスに接続できません。しばらくしてから自動的に再試行します。</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Under way</source>
        <translation>進行中</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>共有済み</translation>
    </message>
    <message>
        <source>Ask again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Uploads are paused.</source>
        <translation>アップロードは一時停止中です。</translation>
    </message>
    <message>
        <source>Resume uploads</source>
        <translation>アップロードを再開</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Clear what is shared</source>
        <translation>共有済みをリストから消去</translation>
    </message>
    <message>
        <source>There is nothing of this kind.</source>
        <translation>該当するものはありません。</translation>
    </message>
    <message>
        <source>Nothing is being uploaded. What you share shows up here.</source>
        <translation>アップロード中のものはありません。共有したものはここに表示されます。</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>すべて再試行</translation>
    </message>
</context>
<context>
    <name>UploadsPage</name>
    <message>
        <source>Uploads</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
</context>
<context>
    <name>korvane::AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>Vimeoに共有できる動画は一度に1本です</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more file(s)</source>
        <translation>
            <numerusform>ほか%n件のファイル</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>korvane::ServiceAccess</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>korvane::Settings</name>
    <message>
        <source>The setting could not be written. It holds until this window is closed.</source>
        <translation>設定を保存できませんでした。このウィンドウを閉じるまで有効です。</translation>
    </message>
</context>
<context>
    <name>korvane::SheetModel</name>
    <message>
        <source>No reason was given.</source>
        <translation>理由は示されませんでした。</translation>
    </message>
    <message>
        <source>Nothing was shared. %1
What you entered is still here: press Post to try again.</source>
        <translation>何も共有されませんでした。%1
入力した内容は残っています。「投稿」を押してもう一度お試しください。</translation>
    </message>
    <message>
        <source>Another account is in use now. Look at what is chosen here, then press Post again.</source>
        <translation>使用中のアカウントが変わりました。ここで選択されている内容を確認してから、もう一度「投稿」を押してください。</translation>
    </message>
</context>
<context>
    <name>korvane::SignInModel</name>
    <message>
        <source>The browser did not open. Open the address below yourself.</source>
        <translation>ブラウザーが開きませんでした。下のアドレスを自分で開いてください。</translation>
    </message>
</context>
</TS>
