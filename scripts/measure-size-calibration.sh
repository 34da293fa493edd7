#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures the size ranges LMSizeEstimate gives for quality-based settings
# (CRF, fixed quantiser, encoder profile, lossless audio) and prints them as
# the rows of its calibration table (mediaformat/LMSizeCalibration.cpp).
#
# Every quality level of every video codec of the registry encodes three
# generated clips (testsrc2: smooth synthetic motion; the same with film grain
# added: hard to compress; mandelbrot: a slow zoom with fine detail), 4 seconds
# at 25 fps each, at two frame sizes, with the codec's own arguments. The row
# keeps the smallest and largest bits per pixel of a frame over those encodes.
# Two kinds of rows hold bytes and make an estimate exact, not a range:
# "frame", the fixed size of a frame of an intra codec whose bitrate setting
# picks a frame size (DNxHD), per frame size; and "startup", what a bitrate
# encoder spends beyond its rate at the start of a file (its rate control fills
# its buffer first), from the difference of a 5 and a 20 second encode.
# Audio levels (Vorbis quality, FLAC, ALAC) encode 10 seconds of 48 kHz stereo
# of three clips (two tones, pink noise, tones over quiet noise); the row keeps
# bits per sample of one channel. Needs ffmpeg, ffprobe and python3.
#
#   bash scripts/measure-size-calibration.sh [REGISTRY]   (takes some minutes)
# BYTES_ONLY=1 measures the "frame" and "startup" rows alone (a minute).
set -euo pipefail
registry=${1:-$(dirname "$0")/../mediaformat/registry/registry.json}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 - "$registry" "$work" <<'PY'
import json, os, subprocess, sys

registry, work = sys.argv[1], sys.argv[2]
codecs = json.load(open(registry))
seconds, rate = 4, 25

def run(args):
    subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-y"] + args, check=True)

def video_clips(width, height):
    size = f"{width}x{height}"
    return {
        "testsrc2": f"testsrc2=size={size}:rate={rate}",
        "grain": f"testsrc2=size={size}:rate={rate},noise=alls=16:allf=t+u",
        "mandelbrot": f"mandelbrot=size={size}:rate={rate}",
    }

audio_clips = {
    "tones": "aevalsrc=0.5*sin(440*2*PI*t)|0.5*sin(550*2*PI*t):s=48000",
    "noise": "anoisesrc=c=pink:a=0.3:s=48000:seed=1[l];anoisesrc=c=pink:a=0.3:s=48000:seed=2[r];[l][r]amerge=inputs=2",
    "mix": "aevalsrc=0.4*sin(440*2*PI*t)|0.4*sin(550*2*PI*t):s=48000[t];"
           "anoisesrc=c=pink:a=0.05:s=48000:seed=3[a];anoisesrc=c=pink:a=0.05:s=48000:seed=4[b];"
           "[a][b]amerge=inputs=2[n];[t][n]amix=inputs=2:normalize=0",
}

# Lossless sources, made once per size, so every encoder sees the same frames.
def source(name, graph, width=None, height=None):
    path = os.path.join(work, f"{name}-{width}x{height}.nut" if width else f"{name}.nut")
    if not os.path.exists(path):
        if width:
            run(["-f", "lavfi", "-i", graph, "-t", str(seconds), "-c:v", "ffv1",
                 "-pix_fmt", "yuv444p10le", path])
        else:
            run(["-f", "lavfi", "-i", graph, "-t", "10", "-c:a", "pcm_s16le", path])
    return path

flags = {"crf": ["-crf"], "qscale": ["-q:v"], "profile": ["-profile:v"]}
rows = []
seen = set()
bytes_only = os.environ.get("BYTES_ONLY") == "1"
for codec in [] if bytes_only else codecs["videoCodecs"]:
    encoder = codec.get("encoder")
    for quality in codec.get("qualities", []):
        kind, value = quality["kind"], quality["value"]
        if kind == "bitrate" or (encoder, kind, value, quality.get("pixelFormat")) in seen:
            continue
        seen.add((encoder, kind, value, quality.get("pixelFormat")))
        sizes = [(176, 144), (352, 288)] if encoder == "h263" else [(426, 240), (854, 480)]
        pix = quality.get("pixelFormat") or codec.get("pixelFormat", "yuv420p")
        bpp = []
        for width, height in sizes:
            for name, graph in video_clips(width, height).items():
                out = os.path.join(work, "out.mkv")
                run(["-i", source(name, graph, width, height), "-c:v", encoder]
                    + codec.get("args", []) + flags[kind] + [value, "-pix_fmt", pix,
                    "-f", "matroska", out])
                bpp.append(os.path.getsize(out) * 8 / (width * height * rate * seconds))
        rows.append(("Video", encoder, kind, value, quality.get("pixelFormat", ""), min(bpp), max(bpp)))

# Fixed frame sizes: ten frames of raw bitstream, on two clips (the same size
# on both, or the codec is not of this kind and the row says so).
for codec in codecs["videoCodecs"]:
    if codec.get("encoder") != "dnxhd":
        continue
    for resolution in codec["resolutions"]:
        width, height = (int(n) for n in resolution.split("x"))
        for quality in codec.get("qualities", []):
            sizes = []
            for name in ("testsrc2", "grain"):
                out = os.path.join(work, "out.raw")
                run(["-i", source(name, video_clips(width, height)[name], width, height),
                     "-frames:v", "10", "-c:v", "dnxhd", "-b:v", quality["value"],
                     "-pix_fmt", codec.get("pixelFormat", "yuv422p"), "-f", "rawvideo", out])
                sizes.append(os.path.getsize(out) / 10)
            row = ("Video", "dnxhd", "frame", quality["value"], resolution, min(sizes), max(sizes))
            if row not in rows:
                rows.append(row)

# Start-up bytes of the other bitrate encoders, at the codec's first frame size.
for codec in codecs["videoCodecs"]:
    encoder = codec.get("encoder")
    if encoder in ("", None, "dnxhd"):
        continue
    explicit = [r for r in codec.get("resolutions", []) if r != "same"]
    size = "640x360" if "same" in codec.get("resolutions", []) else explicit[0]
    width, height = (int(n) for n in size.split("x"))
    for quality in codec.get("qualities", []):
        if quality["kind"] != "bitrate" or (encoder, "startup", quality["value"]) in seen:
            continue
        seen.add((encoder, "startup", quality["value"]))
        sizes = {}
        for seconds_long in (5, 20):
            out = os.path.join(work, "out.raw")
            run(["-f", "lavfi", "-i", f"testsrc2=size={width}x{height}:rate={rate}",
                 "-t", str(seconds_long), "-c:v", encoder] + codec.get("args", [])
                + ["-b:v", quality["value"], "-pix_fmt", codec.get("pixelFormat", "yuv420p"),
                   "-f", "rawvideo", out])
            sizes[seconds_long] = os.path.getsize(out)
        per_second = (sizes[20] - sizes[5]) / 15
        startup = max(0.0, sizes[5] - 5 * per_second)
        rows.append(("Video", encoder, "startup", quality["value"], "", startup, startup))

audio_levels = [("libvorbis", ["-q:a", q]) for q in ("2", "4", "6", "8")] + [("flac", []), ("alac", [])]
for codec, args in [] if bytes_only else audio_levels:
    bits = []
    for name, graph in audio_clips.items():
        out = os.path.join(work, "out.mka")
        run(["-i", source(name, graph), "-c:a", codec] + args + ["-f", "matroska", out])
        bits.append(os.path.getsize(out) * 8 / (48000 * 2 * 10))
    kind = "qscale" if args else "lossless"
    rows.append(("Audio", codec, kind, args[1] if args else "", "", min(bits), max(bits)))

for stream, encoder, kind, value, variant, low, high in rows:
    digits = 0 if kind in ("frame", "startup") else 4
    print(f'    {{LMSizeCalibration::Stream::{stream}, "{encoder}", "{kind}", "{value}", "{variant}", '
          f'{low:.{digits}f}, {high:.{digits}f}}},')
PY
