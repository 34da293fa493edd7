#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Writes the seed corpora of fuzz/corpus/ again: pieces of the default catalogue
# and lists stored the way the data source stores them (made with lmformat), a
# few hand-made inputs beside them. Run it after the catalogue or the stored form
# changes, and commit the result. Needs a normal build (for lmformat) and jq.
#   scripts/make-fuzz-seeds.sh BUILD_DIR
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
lmformat=$(cd "${1:?usage: make-fuzz-seeds.sh BUILD_DIR}" && pwd)/tools/lmformat/lmformat
catalogue=$root/mediaformat/catalogue/formats.json
corpus=$root/fuzz/corpus
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

for t in catalogue stored_list base64 icfg; do
  rm -rf "$corpus/lmfp_fuzz_$t"
  mkdir -p "$corpus/lmfp_fuzz_$t"
done

# Lists as a user leaves them: two recent choices, two custom presets.
ini=$tmp/settings.ini
"$lmformat" --settings "$ini" recent push "$catalogue" "Video/MP4/HD 1080p" >/dev/null
"$lmformat" --settings "$ini" recent push "$catalogue" "Audio/MP3/High Quality" >/dev/null
"$lmformat" --settings "$ini" custom add "$catalogue" "Video/DNxHD MXF/HD 720p 50" "My DNxHD" >/dev/null
"$lmformat" --settings "$ini" custom add "$catalogue" "Audio/MP3/High Quality" "Podcast" >/dev/null
stored() { sed -n "s/^$1=\"\{0,1\}\([^\"]*\)\"\{0,1\}$/\1/p" "$ini"; }
stored recent_format_preset | tr -d '\n' >"$tmp/recent.b64"
stored custom_format_preset | tr -d '\n' >"$tmp/custom.b64"
base64 -d "$tmp/recent.b64" >"$tmp/recent.json"
base64 -d "$tmp/custom.b64" >"$tmp/custom.json"

# Catalogue pieces: one format, one small category, the category with the most
# stream options; and the stored lists' JSON, which is the same form.
c=$corpus/lmfp_fuzz_catalogue
jq -c '.children |= [.[] | select(.title == "Video") | .children |= [.[] | select(.title == "MP4")]]' \
  "$catalogue" >"$c/mp4-format.json"
jq -c '.children[] | select(.title == "Web Video")' "$catalogue" >"$c/web-video-category.json"
jq -c '.children[] | select(.title == "Audio")' "$catalogue" >"$c/audio-category.json"
cp "$tmp/recent.json" "$c/recent-list.json"
cp "$tmp/custom.json" "$c/custom-list.json"
# A preset whose audio is switched off and whose second video codec keeps its own
# choices: the "null" stream and "other" parts of the form.
cat >"$c/other-codec.json" <<'JSON'
{"title":"MP4","faceId":100,"presets":[{"title":"Silent","format":"mp4","video":{"codec":"h264","resolution":"1280x720"},"audio":null,"other":[{"stream":"video","codec":"hevc","quality":"high"}]}]}
JSON

# Stored values: as they are in the file (Base64) and as their JSON (the
# fuzzer also stores its input Base64-encoded), and an empty Recent group.
s=$corpus/lmfp_fuzz_stored_list
cp "$tmp/recent.b64" "$s/recent.b64"
cp "$tmp/custom.b64" "$s/custom.b64"
cp "$tmp/recent.json" "$s/recent.json"
cp "$tmp/custom.json" "$s/custom.json"
printf '%s' '{"title":"Recent","description":"Recent Selection","faceId":1}' >"$s/empty-recent.json"

b=$corpus/lmfp_fuzz_base64
cp "$tmp/custom.b64" "$b/custom.b64"
printf 'QQ==' >"$b/one-byte"
printf 'QUI=' >"$b/two-bytes"
printf 'not base64!' >"$b/invalid"
printf '\x00\xff\xfe\x80binary' >"$b/binary"

i=$corpus/lmfp_fuzz_icfg
cp "$root/mediaformat/catalogue/formats.icfg" "$i/formats.icfg"
cat >"$i/small.icfg" <<'JSON'
{"version":1,"artwork":[{"faceId":1,"images":["artwork/recent.svg","artwork/none.svg"]},{"faceId":100,"images":["./artwork/mp4.svg"]},{"faceId":7,"images":["artwork/missing.svg"]}]}
JSON
cat >"$i/odd-entries.icfg" <<'JSON'
{"artwork":[{"faceId":"1","images":["artwork/recent.svg"]},{"faceId":2.5,"images":"artwork/custom.svg"},{"images":["artwork/video.svg"]},5,{"faceId":-3,"images":["artwork/../artwork/audio.svg"]}]}
JSON

for t in catalogue stored_list base64 icfg; do
  printf '%-24s %s files, %s bytes\n' "lmfp_fuzz_$t" "$(ls "$corpus/lmfp_fuzz_$t" | wc -l)" \
    "$(cat "$corpus/lmfp_fuzz_$t"/* | wc -c)"
done
