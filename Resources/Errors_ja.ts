<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>Flickr's answer is not understood.</source>
        <translation>Flickrの応答を解釈できません。</translation>
    </message>
    <message>
        <source>Flickr says: %1</source>
        <translation>Flickrからのメッセージ：%1</translation>
    </message>
    <message>
        <source>The upload service cannot be watched: %1</source>
        <translation>アップロードサービスを監視できません：%1</translation>
    </message>
    <message>
        <source>“%1” ends too early: it is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made.</source>
        <translation>「%1」は途中で終わっています。ファイルが壊れているか不完全です。最後まで再生できるか確かめるか、元の場所からもう一度コピーしてください。</translation>
    </message>
    <message>
        <source>What ffmpeg says of “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>「%1」についてのffmpegの出力を解釈できません。パッケージ「ffmpeg」を確認してください。</translation>
    </message>
    <message>
        <source>Only MP4 files can be exported.</source>
        <translation>書き出せるのはMP4ファイルだけです。</translation>
    </message>
    <message>
        <source>There is no file to export “%1” to.</source>
        <translation>「%1」の書き出し先のファイルがありません。</translation>
    </message>
    <message>
        <source>Another export writes to %1. Try again.</source>
        <translation>別の書き出しが%1を使用中です。もう一度お試しください。</translation>
    </message>
    <message>
        <source>“%1” was changed while it was exported. Try again when it is complete.</source>
        <translation>「%1」は書き出し中に変更されました。ファイルが完成してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>There is not enough disk space to export “%1”. Free some space and try again.</source>
        <translation>「%1」を書き出すためのディスク容量が足りません。空き容量を増やしてもう一度お試しください。</translation>
    </message>
    <message>
        <source>the export was cancelled</source>
        <translation>書き出しはキャンセルされました</translation>
    </message>
    <message>
        <source>“%1” is not a video that can be read: it is damaged, incomplete or of an unknown format. Check that it plays, or choose another file.</source>
        <translation>「%1」は読み取れる動画ではありません。壊れているか、不完全か、形式が不明です。再生できるか確かめるか、別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>“%1” could not be looked at (%2). Try again.</source>
        <translation>「%1」を調べられませんでした（%2）。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The answer of ffprobe about “%1” is not understood. Check the package “ffmpeg”.</source>
        <translation>「%1」についてのffprobeの応答を解釈できません。パッケージ「ffmpeg」を確認してください。</translation>
    </message>
    <message>
        <source>There are no pictures in “%1”. Choose a file with a video in it.</source>
        <translation>「%1」には映像がありません。動画のファイルを選んでください。</translation>
    </message>
    <message>
        <source>“%1” is 0 seconds long. Choose another file.</source>
        <translation>「%1」の長さは0秒です。別のファイルを選んでください。</translation>
    </message>
    <message>
        <source>Videos cannot be read without the programs ffmpeg and ffprobe. Install the package “ffmpeg” and try again.</source>
        <translation>動画を読み取るにはffmpegとffprobeが必要です。パッケージ「ffmpeg」をインストールしてもう一度お試しください。</translation>
    </message>
    <message>
        <source>The program for videos cannot be started: %1</source>
        <translation>動画用のプログラムを起動できません：%1</translation>
    </message>
    <message>
        <source>The export of “%1” broke off (%2). Try again.</source>
        <translation>「%1」の書き出しが中断しました（%2）。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The installed ffmpeg cannot write H.264 and AAC. Install a package “ffmpeg” with libx264 and try again.</source>
        <translation>インストール済みのffmpegはH.264とAACを書き込めません。libx264に対応したパッケージ「ffmpeg」をインストールしてもう一度お試しください。</translation>
    </message>
    <message>
        <source>“%1” is damaged or incomplete. Check that it plays to its end, or copy it again from where it was made (%2).</source>
        <translation>「%1」は壊れているか不完全です。最後まで再生できるか確かめるか、元の場所からもう一度コピーしてください（%2）。</translation>
    </message>
    <message>
        <source>Accounts of type "%1" cannot be stored.</source>
        <translation>種類が「%1」のアカウントは保存できません。</translation>
    </message>
    <message>
        <source>The user name is empty or holds control characters.</source>
        <translation>ユーザー名が空か、制御文字を含んでいます。</translation>
    </message>
    <message>
        <source>A part of the credential is empty or holds control characters.</source>
        <translation>認証情報の一部が空か、制御文字を含んでいます。</translation>
    </message>
    <message>
        <source>"accounts" is not a list</source>
        <translation>「accounts」がリストではありません</translation>
    </message>
    <message>
        <source>The list of accounts was damaged and is kept as %1. Sign in again.</source>
        <translation>アカウントのリストが破損していたため、%1として残してあります。もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>No account in %1 is understood. Mend the file, or sign in again.</source>
        <translation>%1に認識できるアカウントがありません。ファイルを修正するか、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>There is no account "%1".</source>
        <translation>アカウント「%1」はありません。</translation>
    </message>
    <message>
        <source>The credential file cannot be used: %1.</source>
        <translation>認証情報のファイルを使用できません：%1。</translation>
    </message>
    <message>
        <source>"%1" is missing</source>
        <translation>「%1」がありません</translation>
    </message>
    <message>
        <source>"%1" is not a text</source>
        <translation>「%1」が文字列ではありません</translation>
    </message>
    <message>
        <source>"%1" is empty</source>
        <translation>「%1」が空です</translation>
    </message>
    <message>
        <source>"%1" holds control characters, such as a line break</source>
        <translation>「%1」が改行などの制御文字を含んでいます</translation>
    </message>
    <message>
        <source>it is larger than %1 KB</source>
        <translation>%1 KBを超えています</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>JSONオブジェクトではありません</translation>
    </message>
    <message>
        <source>The application's key is empty, too long, or holds spaces or special characters.</source>
        <translation>アプリケーションのキーが空か、長すぎるか、空白や特殊文字を含んでいます。</translation>
    </message>
    <message>
        <source>The application's secret is empty, too long, or holds spaces or special characters.</source>
        <translation>アプリケーションのシークレットが空か、長すぎるか、空白や特殊文字を含んでいます。</translation>
    </message>
    <message>
        <source>There is no such web service.</source>
        <translation>そのようなWebサービスはありません。</translation>
    </message>
    <message>
        <source>en</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>Too long</source>
        <translation>長すぎます</translation>
    </message>
    <message>
        <source>This request is too long.</source>
        <translation>このリクエストは長すぎます。</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>There is nothing here.</source>
        <translation>ここには何もありません。</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>できません</translation>
    </message>
    <message>
        <source>This page can only be opened.</source>
        <translation>このページは開くことしかできません。</translation>
    </message>
    <message>
        <source>Another sign-in</source>
        <translation>別のサインイン</translation>
    </message>
    <message>
        <source>This page belongs to another sign-in. Go back to Korvane.</source>
        <translation>このページは別のサインインのものです。Korvaneに戻ってください。</translation>
    </message>
    <message>
        <source>Not signed in</source>
        <translation>サインインしていません</translation>
    </message>
    <message>
        <source>You can close this page and go back to Korvane.</source>
        <translation>このページを閉じて、Korvaneに戻ってかまいません。</translation>
    </message>
    <message>
        <source>Thank you</source>
        <translation>ありがとうございます</translation>
    </message>
    <message>
        <source>Add the account again.</source>
        <translation>アカウントをもう一度追加してください。</translation>
    </message>
    <message>
        <source>Enter the keys again.</source>
        <translation>キーをもう一度入力してください。</translation>
    </message>
    <message>
        <source>The stored credential has no usable "%1". %2</source>
        <translation>保存された認証情報に使用可能な「%1」がありません。%2</translation>
    </message>
    <message>
        <source>It is in the keyring, which KORVANE_SECRETS=file forbids to use. %1</source>
        <translation>認証情報はキーリングにありますが、KORVANE_SECRETS=fileによりキーリングは使用できません。%1</translation>
    </message>
    <message>
        <source>The keyring is locked. Unlock it and try again.</source>
        <translation>キーリングがロックされています。ロックを解除してもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 belongs to another user. Move it away, then add the account again.</source>
        <translation>%1は別のユーザーのものです。ほかの場所に移してから、アカウントをもう一度追加してください。</translation>
    </message>
    <message>
        <source>The credential was not stored: the keyring does not answer. Try again, log out and in again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>認証情報を保存できませんでした：キーリングが応答しません。もう一度お試しになるか、コンピューターからログアウトしてログインし直すか、KORVANE_SECRETS=fileを設定してファイルに保存してください。</translation>
    </message>
    <message>
        <source>The keyring does not answer. Try again, or log out and in again.</source>
        <translation>キーリングが応答しません。もう一度お試しになるか、コンピューターからログアウトしてログインし直してください。</translation>
    </message>
    <message>
        <source>The keyring does not hold it any more. %1</source>
        <translation>キーリングに認証情報がもうありません。%1</translation>
    </message>
    <message>
        <source>The keyring cannot be used: %1.</source>
        <translation>キーリングを使用できません：%1。</translation>
    </message>
    <message>
        <source>%1 does not hold it. %2</source>
        <translation>%1に認証情報がありません。%2</translation>
    </message>
    <message>
        <source>The credential was not stored: %1. Unlock the keyring and try again, or set KORVANE_SECRETS=file to keep credentials in a file.</source>
        <translation>認証情報を保存できませんでした：%1。キーリングのロックを解除してもう一度お試しになるか、KORVANE_SECRETS=fileを設定してファイルに保存してください。</translation>
    </message>
    <message>
        <source>the keyring gave no reason</source>
        <translation>キーリングは理由を示しませんでした</translation>
    </message>
    <message>
        <source>there is no session bus</source>
        <translation>セッションバスがありません</translation>
    </message>
    <message>
        <source>the keyring did not answer in time</source>
        <translation>キーリングが時間内に応答しませんでした</translation>
    </message>
    <message>
        <source>the keyring does not hold it</source>
        <translation>キーリングにありません</translation>
    </message>
    <message>
        <source>the keyring is locked</source>
        <translation>キーリングがロックされています</translation>
    </message>
    <message>
        <source>the keyring gave no text</source>
        <translation>キーリングが文字列を返しませんでした</translation>
    </message>
    <message>
        <source>there is no default keyring</source>
        <translation>既定のキーリングがありません</translation>
    </message>
    <message>
        <source>Korvane cannot wait for the browser here (%1). Sign in with a typed code instead.</source>
        <translation>ここではブラウザーからの応答を待てません（%1）。代わりにコードを入力してサインインしてください。</translation>
    </message>
    <message>
        <source>%1 does not confirm the way back to Korvane. Try again later.</source>
        <translation>%1がKorvaneへの戻り先を確認しません。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>Korvane was not allowed to use the %1 account.</source>
        <translation>Korvaneに%1アカウントの使用が許可されませんでした。</translation>
    </message>
    <message>
        <source>Sign in again.</source>
        <translation>もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>The sign-in was cancelled.</source>
        <translation>サインインはキャンセルされました。</translation>
    </message>
    <message>
        <source>Nobody answered in time. Sign in again.</source>
        <translation>時間内に応答がありませんでした。もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 took too long to answer. Try again later.</source>
        <translation>%1の応答に時間がかかりすぎました。あとでもう一度お試しください。</translation>
    </message>
    <message numerus="yes">
        <source>%n day(s)</source>
        <translation>
            <numerusform>%n日</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n時間</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n分</numerusform>
        </translation>
    </message>
    <message>
        <source>it holds something twice</source>
        <translation>重複する項目があります</translation>
    </message>
    <message>
        <source>it holds no usable "%1"</source>
        <translation>使用可能な「%1」がありません</translation>
    </message>
    <message>
        <source>it names no user</source>
        <translation>ユーザー名がありません</translation>
    </message>
    <message>
        <source>%1 is out of order just now (status %2). Try again later.</source>
        <translation>%1は現在利用できません（ステータス%2）。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>長すぎます</translation>
    </message>
    <message>
        <source>it is not HTTP</source>
        <translation>HTTPではありません</translation>
    </message>
    <message>
        <source>status %1</source>
        <translation>ステータス%1</translation>
    </message>
    <message>
        <source>There is no network connection. Connect, then sign in again.</source>
        <translation>ネットワークに接続されていません。接続してからもう一度サインインしてください。</translation>
    </message>
    <message>
        <source>There is no safe connection to %1: %2 Check that date and time of this computer are right, then sign in again.</source>
        <translation>%1への安全な接続を確立できません：%2このコンピューターの日付と時刻を確認してから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2 Check the network connection, then sign in again.</source>
        <translation>%1に接続できません：%2ネットワーク接続を確認してから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 does not take the application's key, or the secret does not belong to it. Check both and sign in again.</source>
        <translation>%1がアプリケーションのキーを受け付けないか、シークレットがキーと一致しません。両方を確認して、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>The code is not the one that %1 gave.</source>
        <translation>コードが%1の表示したものと違います。</translation>
    </message>
    <message>
        <source>This sign-in has expired or was used already. Sign in again.</source>
        <translation>このサインインは期限切れか使用済みです。もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 refused the sign-in (%2). Try again later.</source>
        <translation>%1がサインインを拒否しました（%2）。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 fast. Set date and time right, then sign in again.</source>
        <translation>このコンピューターの時計が%2進んでいるため、%1がサインインを拒否しました。日付と時刻を合わせてから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is %2 slow. Set date and time right, then sign in again.</source>
        <translation>このコンピューターの時計が%2遅れているため、%1がサインインを拒否しました。日付と時刻を合わせてから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 refused the sign-in because this computer's clock is wrong. Set date and time right, then sign in again.</source>
        <translation>このコンピューターの時計が合っていないため、%1がサインインを拒否しました。日付と時刻を合わせてから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>%1 answered something that Korvane does not understand (%2). Try again later.</source>
        <translation>%1の応答をKorvaneが解釈できません（%2）。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>The video “%1” cannot be opened (%2). Choose it again.</source>
        <translation>動画「%1」を開けません（%2）。もう一度選んでください。</translation>
    </message>
    <message>
        <source>no such asset</source>
        <translation>ライブラリにありません</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>終了ステータス%1</translation>
    </message>
    <message>
        <source>stopped by signal %1</source>
        <translation>シグナル%1で停止</translation>
    </message>
    <message>
        <source>took too long</source>
        <translation>時間がかかりすぎました</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>The operation could not be completed (%1, code %2).</source>
        <translation>操作を完了できませんでした（%1、コード%2）。</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>入れ子が深すぎます</translation>
    </message>
    <message>
        <source>it is not JSON at byte %1</source>
        <translation>%1バイト目が正しいJSONではありません</translation>
    </message>
    <message>
        <source>it holds a number that is out of range</source>
        <translation>範囲外の数値を含んでいます</translation>
    </message>
    <message>
        <source>There is only the cellular network, which this upload may not use.</source>
        <translation>モバイル回線しかありませんが、このアップロードには使用できません。</translation>
    </message>
    <message>
        <source>The file became shorter while it was being sent.</source>
        <translation>送信中にファイルが短くなりました。</translation>
    </message>
    <message>
        <source>The upload was stopped.</source>
        <translation>アップロードは停止されました。</translation>
    </message>
    <message>
        <source>There is no network connection.</source>
        <translation>ネットワークに接続されていません。</translation>
    </message>
    <message>
        <source>The proxy server was not found.</source>
        <translation>プロキシサーバーが見つかりません。</translation>
    </message>
    <message>
        <source>No server with the name %1 was found.</source>
        <translation>%1という名前のサーバーが見つかりません。</translation>
    </message>
    <message>
        <source>No connection to %1 could be made.</source>
        <translation>%1に接続できませんでした。</translation>
    </message>
    <message>
        <source>The connection broke off.</source>
        <translation>接続が切れました。</translation>
    </message>
    <message>
        <source>A secure connection could not be made.</source>
        <translation>安全な接続を確立できませんでした。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted.</source>
        <translation>%1の証明書を信頼できません。</translation>
    </message>
    <message>
        <source>The web service did not respond in time.</source>
        <translation>Webサービスが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The web service answered before it had everything.</source>
        <translation>Webサービスがすべてを受け取る前に応答しました。</translation>
    </message>
    <message>
        <source>The file changed while it was being sent.</source>
        <translation>送信中にファイルが変更されました。</translation>
    </message>
    <message>
        <source>The web service's answer is too large.</source>
        <translation>Webサービスの応答が大きすぎます。</translation>
    </message>
    <message>
        <source>The web service does not answer in HTTP.</source>
        <translation>Webサービスの応答がHTTPではありません。</translation>
    </message>
    <message>
        <source>The web service closed the connection.</source>
        <translation>Webサービスが接続を閉じました。</translation>
    </message>
    <message>
        <source>the picture cannot be decoded (%1)</source>
        <translation>画像をデコードできません（%1）</translation>
    </message>
    <message>
        <source>the picture's file</source>
        <translation>画像のファイル</translation>
    </message>
    <message>
        <source>it does not hold a JSON object</source>
        <translation>JSONオブジェクトがありません</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1に書き込めませんでした：%2</translation>
    </message>
    <message>
        <source>a value has a type that JSON has not</source>
        <translation>JSONにない型の値があります</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>%1に書き込めません</translation>
    </message>
    <message>
        <source>Cannot copy the data to be shared</source>
        <translation>共有するデータをコピーできません</translation>
    </message>
    <message>
        <source>the file has changed since it was chosen. Check that it is complete, then share it again.</source>
        <translation>ファイルは選択したあとに変更されました。内容が揃っていることを確認してから、もう一度共有してください。</translation>
    </message>
    <message>
        <source>Cannot open the data to be shared</source>
        <translation>共有するデータを開けません</translation>
    </message>
    <message>
        <source>the file has %1, Flickr takes photos of up to 200 MB</source>
        <translation>ファイルサイズは%1ですが、Flickrが受け付ける写真は200 MBまでです</translation>
    </message>
    <message>
        <source>the file is not a picture</source>
        <translation>ファイルが画像ではありません</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the file is a picture; share it to Flickr</source>
        <translation>ファイルは画像です。Flickrに共有してください</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1</source>
        <translation>セッションバスに接続できません：%1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) cannot be reached: %1</source>
        <translation>アップロードサービス（korvane-uploadd）に接続できません：%1</translation>
    </message>
    <message>
        <source>The upload service (korvane-uploadd) does not answer. End it and try again: it goes on with its uploads when it is started anew.</source>
        <translation>アップロードサービス（korvane-uploadd）が応答しません。終了してから、もう一度お試しください。再び起動されると、アップロードの続きを行います。</translation>
    </message>
    <message>
        <source>The upload service may have taken over what was shared, but its answer was lost. Look at the uploads before you share it again. (%1)</source>
        <translation>アップロードサービスが共有内容を受け取った可能性がありますが、その応答が失われました。もう一度共有する前に、アップロードを確認してください。（%1）</translation>
    </message>
    <message>
        <source>It was broken off.</source>
        <translation>中断されました。</translation>
    </message>
    <message>
        <source>The upload service that is running uses %1 %2, this program %3. End the service (it starts again by itself) or use the same settings.</source>
        <translation>実行中のアップロードサービスは%1に%2を、このプログラムは%3を使用しています。サービスを終了する（自動的に再起動します）か、同じ設定を使用してください。</translation>
    </message>
    <message>
        <source>the spool folder</source>
        <translation>スプールフォルダ</translation>
    </message>
    <message>
        <source>the %1 host</source>
        <translation>%1のホスト</translation>
    </message>
    <message>
        <source>the %1 folder</source>
        <translation>%1のフォルダ</translation>
    </message>
    <message>
        <source>There is no session bus, and the upload service %1 could not be started. Its log says why: %2</source>
        <translation>セッションバスがなく、アップロードサービス%1を起動できませんでした。理由はログにあります：%2</translation>
    </message>
    <message>
        <source>Too much to share at once; share fewer items.</source>
        <translation>一度に共有するには多すぎます。項目を減らしてください。</translation>
    </message>
    <message>
        <source>"%1" holds a value of type %2, which cannot be shared.</source>
        <translation>「%1」に共有できない%2型の値があります。</translation>
    </message>
    <message>
        <source>"%1" holds a NUL character; remove it.</source>
        <translation>「%1」がNUL文字を含んでいます。取り除いてください。</translation>
    </message>
    <message>
        <source>The data of "%1" lies outside of the file that came with it.</source>
        <translation>「%1」のデータが、添付されたファイルの範囲外にあります。</translation>
    </message>
    <message>
        <source>The file was empty. Check it and share it again.</source>
        <translation>ファイルが空でした。確認してもう一度共有してください。</translation>
    </message>
    <message>
        <source>Flickr takes JPEG, PNG, GIF and TIFF pictures.</source>
        <translation>Flickrが受け付ける画像はJPEG、PNG、GIF、TIFFです。</translation>
    </message>
    <message>
        <source>Your upload limit is used up. Free space on Flickr, then retry.</source>
        <translation>アップロードの上限に達しました。Flickrの空き容量を増やしてから再試行してください。</translation>
    </message>
    <message>
        <source>The file is too large for Flickr.</source>
        <translation>ファイルがFlickrには大きすぎます。</translation>
    </message>
    <message>
        <source>Sign in again, then retry.</source>
        <translation>もう一度サインインしてから再試行してください。</translation>
    </message>
    <message>
        <source>Sign in again and allow uploads, then retry.</source>
        <translation>もう一度サインインしてアップロードを許可してから再試行してください。</translation>
    </message>
    <message>
        <source>Check the application's key, then retry.</source>
        <translation>アプリケーションのキーを確認してから再試行してください。</translation>
    </message>
    <message>
        <source>Change what Flickr objects to and share it again, or retry.</source>
        <translation>Flickrに指摘された点を直してもう一度共有するか、再試行してください。</translation>
    </message>
    <message>
        <source>Flickr asks to send the request again.</source>
        <translation>Flickrがリクエストの再送を求めています。</translation>
    </message>
    <message>
        <source>Flickr refused the request's time. Set this device's clock, then retry.</source>
        <translation>Flickrがリクエストの時刻を拒否しました。このデバイスの時計を合わせてから再試行してください。</translation>
    </message>
    <message>
        <source>Flickr does not accept the sign-in (%1). Sign in again, then retry.</source>
        <translation>Flickrがサインインを受け付けません（%1）。もう一度サインインしてから再試行してください。</translation>
    </message>
    <message>
        <source>Flickr is not available just now: %1</source>
        <translation>Flickrは現在利用できません：%1</translation>
    </message>
    <message>
        <source>Flickr's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>Flickrの応答を解釈できませんでした（HTTPステータス%1）。あとで再試行してください。</translation>
    </message>
    <message>
        <source>Flickr refused the photo: %1 (code %2). %3</source>
        <translation>Flickrが写真を拒否しました：%1（コード%2）。%3</translation>
    </message>
    <message>
        <source>The photo is on Flickr; adding it to its album is still to be done. %1</source>
        <translation>写真はFlickrにありますが、アルバムへの追加がまだです。%1</translation>
    </message>
    <message>
        <source>The photo %1 is no longer in the photo library. Share it again from where it is now.</source>
        <translation>写真%1がライブラリにもうありません。今ある場所からもう一度共有してください。</translation>
    </message>
    <message>
        <source>There is no usable sign-in for the %1 account of %2, from which this was shared.</source>
        <translation>共有に使われた%2の%1アカウントには使用可能なサインインがありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) shared to Flickr</source>
        <translation>
            <numerusform>写真%n枚をFlickrに共有しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) shared to Vimeo</source>
        <translation>
            <numerusform>動画%n本をVimeoに共有しました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s) could not be shared</source>
        <translation>
            <numerusform>写真%n枚を共有できませんでした</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n video(s) could not be shared</source>
        <translation>
            <numerusform>動画%n本を共有できませんでした</numerusform>
        </translation>
    </message>
    <message>
        <source>Show uploads</source>
        <translation>アップロードを表示</translation>
    </message>
    <message>
        <source>The file %1 has changed since it was shared. Share it again.</source>
        <translation>ファイル%1は共有したあとに変更されました。もう一度共有してください。</translation>
    </message>
    <message>
        <source>The file cannot be read (%1). Bring it back, then retry.</source>
        <translation>ファイルを読み取れません（%1）。元に戻してから再試行してください。</translation>
    </message>
    <message>
        <source>The file %1 is empty.</source>
        <translation>ファイル%1は空です。</translation>
    </message>
    <message>
        <source>There is no room to convert %1 in %2.</source>
        <translation>%2に%1を変換するための空き容量がありません。</translation>
    </message>
    <message>
        <source>%1 is a video. Share it to Vimeo.</source>
        <translation>%1は動画です。Vimeoに共有してください。</translation>
    </message>
    <message>
        <source>The post holds no %1. Share the %1 again.</source>
        <translation>投稿に%1がありません。%1をもう一度共有してください。</translation>
    </message>
    <message>
        <source>The %1's data is gone from this device. Share it again.</source>
        <translation>このデバイスに%1のデータがもうありません。もう一度共有してください。</translation>
    </message>
    <message>
        <source>The %1 is empty.</source>
        <translation>%1が空です。</translation>
    </message>
    <message>
        <source>The %1's data was damaged on this device. Share it again.</source>
        <translation>このデバイスで%1のデータが壊れました。もう一度共有してください。</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>A video on Vimeo needs a title. Share it again with one.</source>
        <translation>Vimeoの動画にはタイトルが必要です。タイトルを付けてもう一度共有してください。</translation>
    </message>
    <message>
        <source>video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>dbus-daemon could not be started at %1</source>
        <translation>dbus-daemonを%1で起動できませんでした</translation>
    </message>
    <message>
        <source>The data to be shared cannot be stored in %1</source>
        <translation>共有するデータを%1に保存できません</translation>
    </message>
    <message>
        <source>Vimeo's upload ticket cannot be used: %1. Retry later.</source>
        <translation>Vimeoのアップロードチケットを使用できません：%1。あとで再試行してください。</translation>
    </message>
    <message>
        <source>it has no id</source>
        <translation>IDがありません</translation>
    </message>
    <message>
        <source>it does not say where to send the video</source>
        <translation>動画の送信先が示されていません</translation>
    </message>
    <message>
        <source>its address begins with %1:</source>
        <translation>アドレスが%1:で始まります</translation>
    </message>
    <message>
        <source>it points into the local network (%1)</source>
        <translation>ローカルネットワークを指しています（%1）</translation>
    </message>
    <message>
        <source>The upload service ended unexpectedly each time it tried this upload, so it was set aside. Check the file, then retry or remove the upload.</source>
        <translation>このアップロードを試みるたびにアップロードサービスが異常終了したため、保留にしました。ファイルを確認してから、再試行するか削除してください。</translation>
    </message>
    <message>
        <source>There is nothing to share.</source>
        <translation>共有するものがありません。</translation>
    </message>
    <message>
        <source>There is no %1 account.</source>
        <translation>%1アカウントがありません。</translation>
    </message>
    <message>
        <source>Given up after %1 hours of trying. Last: %2 Retry when it is better.</source>
        <translation>%1時間試しましたが、中止しました。最後の問題：%2 状況がよくなってから再試行してください。</translation>
    </message>
    <message>
        <source>The upload queue cannot be written: %1</source>
        <translation>アップロードキューに書き込めません：%1</translation>
    </message>
    <message>
        <source>%1 cannot be reached: %2</source>
        <translation>%1に接続できません：%2</translation>
    </message>
    <message>
        <source>The connection to %1 failed: %2</source>
        <translation>%1への接続に失敗しました：%2</translation>
    </message>
    <message>
        <source>%1 is in trouble (HTTP status %2).</source>
        <translation>%1に問題が発生しています（HTTPステータス%2）。</translation>
    </message>
    <message>
        <source>Vimeo did not say how much of the video it has (HTTP status %1).</source>
        <translation>Vimeoが動画の受信済みの量を示しませんでした（HTTPステータス%1）。</translation>
    </message>
    <message>
        <source>Vimeo says that it has more of the video than there is. Retry later.</source>
        <translation>Vimeoが示した受信量が動画のサイズを超えています。あとで再試行してください。</translation>
    </message>
    <message>
        <source>Vimeo takes the video's parts but stores nothing of them. Retry later.</source>
        <translation>Vimeoは動画の各部分を受け取りますが、保存していません。あとで再試行してください。</translation>
    </message>
    <message>
        <source>Vimeo's answer was not understood (HTTP status %1). Retry later.</source>
        <translation>Vimeoの応答を解釈できませんでした（HTTPステータス%1）。あとで再試行してください。</translation>
    </message>
    <message>
        <source>Vimeo refused the video: %1 (code %2). Retry, or share it again.</source>
        <translation>Vimeoが動画を拒否しました：%1（コード%2）。再試行するか、もう一度共有してください。</translation>
    </message>
    <message>
        <source>Vimeo does not accept the sign-in (%1). Sign in again, check this device's clock, then retry.</source>
        <translation>Vimeoがサインインを受け付けません（%1）。もう一度サインインし、このデバイスの時計を確認してから再試行してください。</translation>
    </message>
    <message>
        <source>Vimeo asks to send the video again.</source>
        <translation>Vimeoが動画の再送を求めています。</translation>
    </message>
    <message>
        <source>The video is larger than the space that is free on Vimeo. Free space there, or share a smaller one.</source>
        <translation>動画がVimeoの空き容量を超えています。Vimeoの空き容量を増やすか、より小さい動画を共有してください。</translation>
    </message>
    <message>
        <source>The Vimeo account can take no more videos just now. Retry when its quota is renewed.</source>
        <translation>このVimeoアカウントには現在これ以上動画を追加できません。上限が更新されてから再試行してください。</translation>
    </message>
    <message>
        <source>title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>tags</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>privacy setting</source>
        <translation>公開範囲の設定</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1と%2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Vimeo refused it: %1 (code %2). Retry.</source>
        <translation>Vimeoが拒否しました：%1（コード%2）。再試行してください。</translation>
    </message>
    <message>
        <source>The video is on Vimeo, but without its %1. %2</source>
        <translation>動画はVimeoにありますが、%1がまだ設定されていません。%2</translation>
    </message>
    <message>
        <source>Until then others may see the video.</source>
        <translation>それまでは、ほかの人が動画を見られる可能性があります。</translation>
    </message>
    <message>
        <source>The server that Vimeo named for this video cannot be reached: %1 Vimeo will be asked for another one.</source>
        <translation>Vimeoがこの動画に指定したサーバーに接続できません：%1 Vimeoに別のサーバーを要求します。</translation>
    </message>
    <message>
        <source>Vimeo did not say whether it has the whole video: the video may be on Vimeo; look there, then retry or remove.</source>
        <translation>Vimeoが動画全体を受け取ったかどうかを示しませんでした。動画はすでにVimeoにあるかもしれません。Vimeoで確認してから、再試行するか削除してください。</translation>
    </message>
    <message>
        <source>The whole video is at Vimeo, but the upload queue cannot be written. Make room on the disk; it goes on by itself.</source>
        <translation>動画全体がVimeoに届いていますが、アップロードキューに書き込めません。ディスクの空き容量を増やしてください。自動的に再開します。</translation>
    </message>
</context>
</TS>
