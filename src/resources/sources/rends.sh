#!/bin/sh
# Renders the bitmap pictures of ../Images from the drawings of this folder.
# Needs rsvg-convert, ImageMagick, optipng and python3.
set -eu

cd "$(dirname "$0")"
images=../Images
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT

# rends <drawing> <side in pixels> <picture>
rends()
{
    rsvg-convert --width "$2" --height "$2" --output "$3" "$1"
    # No reduction to a palette: QImage::scaled crashes on an indexed picture of double resolution.
    optipng -quiet -strip all -nb -nc -np -o5 "$3"
}

rends boutonAjoutOnglet.svg 16 "$images/boutonAjoutOnglet.png"
rends boutonFermetureOngletActif.svg 32 "$images/boutonFermetureOngletActif@2x.png"
rends boutonFermetureOngletInactif.svg 32 "$images/boutonFermetureOngletInactif@2x.png"
rends fiole16.svg 16 "$images/Fiole16.png"
rends fiole.svg 32 "$images/Fiole32.png"
rends fiole.svg 64 "$images/Fiole32PixelsDoublay.png"

# One picture under two names; its length in bytes is fixed, whichever zlib compresses it.
rsvg-convert --width 128 --height 128 --output "$travail/fiole128.png" fiole.svg
convert "$travail/fiole128.png" -depth 8 "rgba:$travail/fiole128.rgba"
python3 fixe_taille.py "$travail/fiole128.rgba" 128 19151 "$images/Fiole128.png"
cp "$images/Fiole128.png" "$images/IconeBarreTitreDefautLibFabrelGui.png"

rsvg-convert --width 48 --height 48 --output "$travail/fiole48.png" fiole.svg
convert "$images/Fiole16.png" "$images/Fiole32.png" "$travail/fiole48.png" \
    "$travail/fiole128.png" "$images/Fiole.ico"
