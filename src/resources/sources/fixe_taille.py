"""Writes a square RGBA picture as a PNG file of a given length.

The pixels are compressed in several ways, and the largest form that still fits is kept; a text
chunk, which decoders skip, fills the rest.
"""

import struct
import sys
import zlib

DESCRIPTION = b"Comment\0A small flask, the default icon of libFabrelGui."


def bloc(nom, donnees):
    controle = zlib.crc32(nom + donnees)
    return struct.pack(">I", len(donnees)) + nom + donnees + struct.pack(">I", controle)


def filtre(pixels, cote, numero):
    """Scan lines with filter 0 (none), 1 (left neighbour) or 2 (neighbour above)."""
    pas = 4 * cote
    lignes = [pixels[i * pas:(i + 1) * pas] for i in range(cote)]
    resultat = bytearray()
    for rang, ligne in enumerate(lignes):
        if numero == 1:
            voisine = bytes(4) + ligne[:-4]
        elif numero == 2 and rang > 0:
            voisine = lignes[rang - 1]
        else:
            voisine = bytes(pas)
        resultat.append(numero)
        resultat += bytes((a - b) & 0xFF for a, b in zip(ligne, voisine))
    return bytes(resultat)


def comprime(lignes, niveau, strategie):
    compresseur = zlib.compressobj(niveau, zlib.DEFLATED, zlib.MAX_WBITS, zlib.DEF_MEM_LEVEL, strategie)
    return compresseur.compress(lignes) + compresseur.flush()


def main():
    source, cote, taille, destination = sys.argv[1], int(sys.argv[2]), int(sys.argv[3]), sys.argv[4]
    with open(source, "rb") as fichier:
        pixels = fichier.read()
    # 8 bits per channel, colour type 6 (RGBA), not interlaced.
    entete = b"\x89PNG\r\n\x1a\n" + bloc(b"IHDR", struct.pack(">IIBBBBB", cote, cote, 8, 6, 0, 0, 0))
    fin = bloc(b"IEND", b"")
    place = taille - len(entete) - len(fin) - len(bloc(b"tEXt", DESCRIPTION))

    strategies = (zlib.Z_DEFAULT_STRATEGY, zlib.Z_RLE, zlib.Z_HUFFMAN_ONLY)
    candidats = (bloc(b"IDAT", comprime(filtre(pixels, cote, numero), niveau, strategie))
                 for numero in range(3) for niveau in range(1, 10) for strategie in strategies)
    image = max((candidat for candidat in candidats if len(candidat) <= place), key=len, default=None)
    if image is None:
        sys.exit(f"{source}: the picture does not fit in {taille} bytes")

    texte = bloc(b"tEXt", DESCRIPTION.ljust(len(DESCRIPTION) + place - len(image)))
    with open(destination, "wb") as fichier:
        fichier.write(entete + texte + image + fin)
    print(f"{destination}: {taille} bytes, {place - len(image)} of them blanks")


if __name__ == "__main__":
    main()
