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
declare -A semitone=([C4]=-9 [G4]=-2 [C5]=3 [D5]=5 [E5]=7 [G5]=10 [A5]=12 [C6]=15 [D6]=17 [E6]=19 [G6]=22)

# partial FILE START LENGTH PITCH DECIBELS: writes a sine tone that begins after START seconds and fades exponentially
# within LENGTH seconds. PITCH is %SEMITONES above A4, or %FROM/%TO for a tone that slides. DECIBELS is the gain.
partial() {
    sox -R -D -n -r 44100 -c 1 -e floating-point -b 32 "$1" synth "$3" sine "$4" \
        fade t 0.003 fade l 0 "$3" "$3" gain "$5" pad "$2"
}

# sound FILE LENGTH PEAK RING START:NOTE...: writes a sound of LENGTH seconds. Each note begins after START seconds and
# fades within RING seconds. PEAK is the level of the loudest sample, in decibels relative to full scale.
sound() {
    local file=$1 length=$2 peak=$3 ring=$4 note tone part parts=()
    shift 4
    for note; do
        tone=${semitone[${note#*:}]}
        part=$work/$file.$note
        partial "$part.bar.wav" "${note%:*}" "$ring" "%$tone" -14
        partial "$part.overtone.wav" "${note%:*}" 0.09 "%$((tone + 24))" -28
        partial "$part.bubble.wav" "${note%:*}" 0.07 "%$((tone - 5))/%$((tone + 12))" -17
        parts+=(-v 1 "$part.bar.wav" -v 1 "$part.overtone.wav" -v 1 "$part.bubble.wav")
    done
    sox -R -D -m "${parts[@]}" -b 16 -e signed-integer "sounds/$file.WAV" \
        trim 0 "$length" highpass 80 gain -n "$peak" fade h 0.002 "$length" 0.06
}

sound son2 0.12 -6.5 0.2 0:C5 0.045:E5
sound son5 0.27 -6 0.4 0:C5 0.06:E5 0.12:G5
sound son10 0.48 -5 0.6 0:C4 0:C5 0.06:E5 0.12:G5 0.18:A5 0.24:C6
sound son50 0.74 -4 0.8 0:C4 0:C5 0.065:D5 0.13:E5 0.195:G4 0.195:G5 0.26:A5 0.325:C6 0.39:E6
sound son80 1.0 -3 1.1 0:C4 0:C5 0.06:D5 0.12:E5 0.18:G4 0.18:G5 0.24:A5 0.3:C6 0.36:D6 0.42:E6 \
    0.48:C5 0.5:G5 0.52:C6 0.55:G6
