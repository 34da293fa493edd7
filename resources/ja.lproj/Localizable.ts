<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>エンコーダ</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>FrameRate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Save as New Preset</source>
        <translation>新規プリセットとして保存</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>プリセット名</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近の項目</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Web Video</source>
        <translation>Web ビデオ</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>ソースと同じ</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Medium Quality</source>
        <translation>中品質</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低品質</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>customSave</source>
        <translation>新しいプリセットの名前を入力してください：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>MP4 file format</source>
        <translation>MP4 ファイル形式</translation>
    </message>
    <message>
        <source>MP4 file format with HEVC</source>
        <translation>HEVC を使用した MP4 ファイル形式</translation>
    </message>
    <message>
        <source>MOV file format with Apple ProRes</source>
        <translation>Apple ProRes を使用した MOV ファイル形式</translation>
    </message>
    <message>
        <source>MP4 file format for iTunes</source>
        <translation>iTunes 用 MP4 ファイル形式</translation>
    </message>
    <message>
        <source>Matroska file format</source>
        <translation>Matroska ファイル形式</translation>
    </message>
    <message>
        <source>Matroska file format with HEVC</source>
        <translation>HEVC を使用した Matroska ファイル形式</translation>
    </message>
    <message>
        <source>Audiovisual Media file format</source>
        <translation>オーディオビジュアルメディア ファイル形式</translation>
    </message>
    <message>
        <source>AVI file format with XVID</source>
        <translation>XVID を使用した AVI ファイル形式</translation>
    </message>
    <message>
        <source>AVI file format with DIVX</source>
        <translation>DIVX を使用した AVI ファイル形式</translation>
    </message>
    <message>
        <source>MXF file format with DNxHD</source>
        <translation>DNxHD を使用した MXF ファイル形式</translation>
    </message>
    <message>
        <source>MXF file format with Apple ProRes</source>
        <translation>Apple ProRes を使用した MXF ファイル形式</translation>
    </message>
    <message>
        <source>MPEG File format for VCD</source>
        <translation>VCD 用 MPEG ファイル形式</translation>
    </message>
    <message>
        <source>MPEG file format for SVCD</source>
        <translation>SVCD 用 MPEG ファイル形式</translation>
    </message>
    <message>
        <source>MPEG file format for DVD - Video</source>
        <translation>DVD-Video 用 MPEG ファイル形式</translation>
    </message>
    <message>
        <source>3GPP2 file format</source>
        <translation>3GPP2 ファイル形式</translation>
    </message>
    <message>
        <source>3GPP file format</source>
        <translation>3GPP ファイル形式</translation>
    </message>
    <message>
        <source>Waveform Audio File Format</source>
        <translation>Waveform Audio ファイル形式</translation>
    </message>
    <message>
        <source>Audio Interchange File Format</source>
        <translation>Audio Interchange ファイル形式</translation>
    </message>
    <message>
        <source>Simple Audio File Format</source>
        <translation>シンプルオーディオ ファイル形式</translation>
    </message>
    <message>
        <source>Matroska Audio File Format</source>
        <translation>Matroska オーディオ ファイル形式</translation>
    </message>
    <message>
        <source>Smartphone</source>
        <translation>スマートフォン</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>タブレット</translation>
    </message>
    <message>
        <source>Television</source>
        <translation>テレビ</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>ゲーム機</translation>
    </message>
    <message>
        <source>Basic Phone</source>
        <translation>フィーチャーフォン</translation>
    </message>
    <message>
        <source>DVD Player</source>
        <translation>DVD プレーヤー</translation>
    </message>
    <message>
        <source>Video Sharing</source>
        <translation>動画共有</translation>
    </message>
    <message>
        <source>Social Square</source>
        <translation>SNS 用スクエア</translation>
    </message>
    <message>
        <source>Vertical Video</source>
        <translation>縦型動画</translation>
    </message>
    <message>
        <source>WebM file format</source>
        <translation>WebM ファイル形式</translation>
    </message>
    <message>
        <source>MP3 file format</source>
        <translation>MP3 ファイル形式</translation>
    </message>
    <message>
        <source>M4A file format with AAC</source>
        <translation>AAC を使用した M4A ファイル形式</translation>
    </message>
    <message>
        <source>FLAC file format</source>
        <translation>FLAC ファイル形式</translation>
    </message>
    <message>
        <source>Square 1080p</source>
        <translation>正方形 1080p</translation>
    </message>
    <message>
        <source>Vertical 1080p</source>
        <translation>縦型 1080p</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>ロスレス</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>モノラル</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>ステレオ</translation>
    </message>
    <message>
        <source>5.1 Surround</source>
        <translation>5.1ch サラウンド</translation>
    </message>
    <message>
        <source>Recent Selection</source>
        <translation>最近の選択</translation>
    </message>
    <message>
        <source>Custom Preset</source>
        <translation>カスタムプリセット</translation>
    </message>
    <message>
        <source>MP4 Format</source>
        <translation>MP4 形式</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>フォーマット一覧</translation>
    </message>
    <message>
        <source>Default format catalogue</source>
        <translation>標準フォーマットカタログ</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Loading formats…</source>
        <translation>フォーマットを読み込んでいます…</translation>
    </message>
    <message>
        <source>The presets you choose appear here.</source>
        <translation>選択したプリセットがここに表示されます。</translation>
    </message>
    <message>
        <source>Presets you save with “Save as New Preset” appear here.</source>
        <translation>「新規プリセットとして保存」で保存したプリセットがここに表示されます。</translation>
    </message>
    <message>
        <source>No matching presets</source>
        <translation>一致するプリセットはありません</translation>
    </message>
    <message>
        <source>Choose a format</source>
        <translation>フォーマットを選択</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Names are limited to %1 characters.</source>
        <translation>名前は%1文字までです。</translation>
    </message>
    <message>
        <source>Next tab (%1)</source>
        <translation>次のタブ（%1）</translation>
    </message>
    <message>
        <source>Previous tab (%1)</source>
        <translation>前のタブ（%1）</translation>
    </message>
    <message>
        <source>Move between tabs (%1)</source>
        <translation>タブ間を移動（%1）</translation>
    </message>
    <message>
        <source>Type anywhere to search</source>
        <translation>どこで入力しても検索できます</translation>
    </message>
    <message>
        <source>Move to the list (%1)</source>
        <translation>リストに移動（%1）</translation>
    </message>
    <message>
        <source>Choose the first match (%1)</source>
        <translation>最初の一致項目を選択（%1）</translation>
    </message>
    <message>
        <source>Edit (%1)</source>
        <translation>編集（%1）</translation>
    </message>
    <message>
        <source>Remove (%1)</source>
        <translation>削除（%1）</translation>
    </message>
    <message>
        <source>Scroll tabs left</source>
        <translation>タブを左へスクロール</translation>
    </message>
    <message>
        <source>Scroll tabs right</source>
        <translation>タブを右へスクロール</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Recent presets</source>
        <translation>最近のプリセット</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Formats of %1</source>
        <translation>%1 の形式</translation>
    </message>
    <message>
        <source>Presets of %1</source>
        <translation>%1 のプリセット</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Show all presets again</source>
        <translation>すべてのプリセットを再表示</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder — try %2</source>
        <translation>このFFmpegには%1エンコーダーがありません — %2をお試しください</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer — try %2</source>
        <translation>このFFmpegには%1マルチプレクサーがありません — %2をお試しください</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 encoder</source>
        <translation>このFFmpegには%1エンコーダーがありません</translation>
    </message>
    <message>
        <source>This FFmpeg has no %1 muxer</source>
        <translation>このFFmpegには%1マルチプレクサーがありません</translation>
    </message>
    <message>
        <source>≈ %1 per 10 minutes</source>
        <translation>10分あたり約%1</translation>
    </message>
    <message>
        <source>%1 per 10 minutes</source>
        <translation>10分あたり%1</translation>
    </message>
    <message>
        <source>Size not known for an automatic codec</source>
        <translation>自動コーデックではサイズを見積もれません</translation>
    </message>
    <message>
        <source>Manage Presets</source>
        <translation>プリセットの管理</translation>
    </message>
    <message>
        <source>Manage Presets…</source>
        <translation>プリセットを管理…</translation>
    </message>
    <message>
        <source>Your custom presets, by format</source>
        <translation>フォーマット別のカスタムプリセット</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>読み込む…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Names already in use on import:</source>
        <translation>読み込み時に使用中の名前:</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>両方を残す</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Preset files</source>
        <translation>プリセットファイル</translation>
    </message>
    <message>
        <source>Another preset of this format already has this name.</source>
        <translation>このフォーマットには同じ名前のプリセットがすでにあります。</translation>
    </message>
    <message>
        <source>Imported: %1. Replaced: %2. Skipped: %3.</source>
        <translation>読み込み: %1。置き換え: %2。スキップ: %3。</translation>
    </message>
    <message>
        <source>Exported: %1.</source>
        <translation>書き出し: %1。</translation>
    </message>
    <message>
        <source>The file could not be imported: %1</source>
        <translation>ファイルを読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>The presets could not be exported: %1</source>
        <translation>プリセットを書き出せませんでした: %1</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>Sized for a source of %1 at %2 fps with %3 kHz stereo sound where the preset keeps the source's settings.</source>
        <translation>プリセットがソースの設定を保つ項目は、%1・%2 fps・%3 kHz ステレオのソースとして計算しています。</translation>
    </message>
</context>
</TS>
