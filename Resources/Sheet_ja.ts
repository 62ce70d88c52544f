<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AttachmentsModel</name>
    <message>
        <source>only one video at a time can be shared to Vimeo</source>
        <translation>Vimeoに共有できる動画は一度に1本です</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
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
</context>
<context>
    <name>Previews</name>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%2件中%1件目：%3</translation>
    </message>
    <message numerus="yes">
        <source>%n photo(s)</source>
        <translation>
            <numerusform>写真%n枚</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SharedFile</name>
    <message>
        <source>this is not on this device; copy it here, or open its folder in the file manager first</source>
        <translation>この端末にありません。ここにコピーするか、先にファイルマネージャーでフォルダを開いてください</translation>
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
        <source>Leave them out</source>
        <translation>これらを除く</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>動画のタイトル</translation>
    </message>
    <message>
        <source>Title (optional)</source>
        <translation>タイトル（任意）</translation>
    </message>
    <message numerus="yes">
        <source>Room for %n more letter(s)</source>
        <translation>
            <numerusform>あと%n文字入力できます</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SheetModel</name>
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
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Handing over to the upload service…</source>
        <translation>アップロードサービスに渡しています…</translation>
    </message>
</context>
<context>
    <name>TableRow</name>
    <message>
        <source>New tag</source>
        <translation>新しいタグ</translation>
    </message>
</context>
</TS>
