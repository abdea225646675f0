#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Renders all pictures of the game and the desktop icons from the SVG sources.
# Needs librsvg2-bin, imagemagick and icoutils. Every run writes the same bytes.
set -euo pipefail
cd "$(dirname "$0")"

field='rgb(128,160,192)' # the steel blue background of the windows
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# render SOURCE WIDTH HEIGHT [STYLE]: writes a smooth PNG, drawn at eight times the size and scaled down.
render() {
    rsvg-convert --width $(($2 * 8)) --height $(($3 * 8)) --stylesheet "${4-/dev/null}" "sources/$1.svg" |
        convert png:- -scale 12.5% -depth 8 -strip png:-
}

# cut_out COLOURS: reduces a picture to at most COLOURS colours. Each pixel becomes opaque or transparent, as a GIF or
# an icon needs it. Pixels that are more than 35 % opaque are blended with the background. All others become
# transparent.
cut_out() {
    convert png:- \( +clone -alpha extract -threshold 35% \) \
        \( -clone 0 -background "$field" -flatten -alpha off \) -delete 0 +swap \
        -compose CopyOpacity -composite +dither -colors "$1" -depth 8 png:-
}

# The balls differ in hue and in lightness, for players who confuse hues. colour_table.py checks the differences.
for ball in ir ib iv ij ip ig; do
    render ball 20 20 "sources/$ball.css" | cut_out 256 | convert png:- +dither "pictures/$ball.gif"
done

render button 76 20 | cut_out 256 >"$work/button.png"
convert "$work/button.png" +dither pictures/button-normal.gif
convert "$work/button.png" -rotate 180 +dither pictures/button-hover.gif

render frame 48 48 >"$work/frame.png"
while read -r name x y; do
    convert "$work/frame.png" -crop "16x16+$x+$y" +repage -alpha off -type TrueColor "BMP3:pictures/$name.bmp"
done <<'PIECES'
HG 0 0
H 16 0
HD 32 0
G 0 16
D 32 16
BG 0 32
B 16 32
BD 32 32
PIECES

render about 413 344 | convert png:- -alpha off -type TrueColor BMP3:pictures/about.bmp

# The help icon is shown on the steel blue background. The window icon is shown on any background, so its edges are not
# blended. It has too few colours for shadows and reflections. Its palette is chosen by hand: red, yellow and blue from
# dark to light, and white.
render help 32 32 | cut_out 16 >"$work/help.png"
convert -size 1x1 xc:'#8c0208' xc:'#bc0410' xc:'#ec0818' xc:'#f8604a' xc:'#ffb8ac' \
    xc:'#c07a00' xc:'#e8ac08' xc:'#ffde04' xc:'#fff3a0' \
    xc:'#0a128c' xc:'#0a28bc' xc:'#0a3ce0' xc:'#3a78ec' xc:'#a9c9f7' xc:'#ffffff' xc:none +append "$work/palette.png"
echo '.shadow, .reflection { display: none }' >"$work/plain.css"
render zampotine 32 32 "$work/plain.css" |
    convert png:- -channel A -threshold 50% +channel +dither -remap "$work/palette.png" "$work/zampotine.png"
for name in help zampotine; do
    icotool --create --output "pictures/$name.ico" "$work/$name.png"
done

# The desktop icons have partly transparent edges. Their files contain only the pixels, without metadata.
mkdir -p icons
for size in 16 22 24 32 48 64 128 256 512; do
    rsvg-convert --width $size --height $size sources/zampotine.svg |
        convert png:- -depth 8 -strip -define png:compression-level=9 -define png:compression-filter=5 \
            -define png:exclude-chunks=all "PNG32:icons/$size.png"
done
