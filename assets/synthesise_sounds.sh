#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Synthesises the five sounds: bubbles that pop on marimba notes. The highest note rises with the size of the
# group.
# Needs sox. Every run writes the same bytes.
set -euo pipefail
cd "$(dirname "$0")"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Semitones above A4 (440 Hz). All notes of this scale, the major pentatonic, sound good together.
declare -A semitone=([C3]=-21 [C4]=-9 [G4]=-2 [C5]=3 [D5]=5 [E5]=7 [G5]=10 [A5]=12 [C6]=15 [D6]=17 [E6]=19)

# partial FILE START LENGTH PITCH DECIBELS: writes a sine tone that begins after START seconds and fades exponentially
# within LENGTH seconds. PITCH is %SEMITONES above A4, or %FROM/%TO for a tone that slides. DECIBELS is the gain.
partial() {
    sox -R -D -n -r 44100 -c 1 -e floating-point -b 32 "$1" synth "$3" sine "$4" \
        fade t 0.002 fade l 0 "$3" "$3" gain "$5" pad "$2"
}

# sound FILE LENGTH PEAK RING START:NOTE...: writes a sound of LENGTH seconds. Each note begins after START seconds and
# fades within RING seconds. PEAK is the level of the loudest sample, in decibels relative to full scale. The game waits
# for the end of the sound. So the whole sound fades from its beginning: it is loudest at once and leaves no tail.
sound() {
    local file=$1 length=$2 peak=$3 ring=$4 note tone part parts=()
    shift 4
    for note; do
        tone=${semitone[${note#*:}]}
        part=$work/$file.$note
        partial "$part.bar.wav" "${note%:*}" "$ring" "%$tone" -14
        partial "$part.overtone.wav" "${note%:*}" 0.06 "%$((tone + 24))" -28
        partial "$part.bubble.wav" "${note%:*}" 0.05 "%$((tone - 5))/%$((tone + 12))" -17
        parts+=(-v 1 "$part.bar.wav" -v 1 "$part.overtone.wav" -v 1 "$part.bubble.wav")
    done
    sox -R -D -m "${parts[@]}" -b 16 -e signed-integer "sounds/$file.WAV" \
        trim 0 "$length" highpass 80 fade t 0.001 "$length" "$length" gain -n "$peak"
}

sound son2 0.06 -7 0.2 0:C5 0.022:E5
sound son5 0.11 -6.5 0.35 0:C5 0.026:E5 0.052:G5
sound son10 0.18 -5 0.6 0:C4 0.004:C5 0.032:E5 0.06:G5 0.088:C6
sound son50 0.26 -4 0.8 0:C4 0.006:C5 0.034:D5 0.062:E5 0.09:G5 0.118:A5 0.146:C6
sound son80 0.35 -3 1 0:C3 0.005:C4 0.015:C5 0.043:D5 0.071:E5 0.099:G4 0.1:G5 0.127:A5 0.155:C5 0.155:C6 0.183:D6 \
    0.211:G5 0.211:E6
