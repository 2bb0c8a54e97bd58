#!/usr/bin/env python3
"""Writes a vCard file of 300 people to standard output: Latin, Korean, Cyrillic and Turkish names, several numbers
each, some with photos, groups and notes, and between them two cards that are broken."""

import base64
import struct
import zlib

LATIN = ["Adams", "Baker", "Clarke", "Dubois", "Eriksson", "Fischer", "García", "Hansen", "Ivanović", "Jónsson",
         "Kowalski", "Łukasik", "Müller", "Novák", "Østergaard", "Petit", "Quinn", "Rossi", "Šimić", "Tóth"]
FIRST = ["Anna", "Bruno", "Chloë", "David", "Élise"]
KOREAN = ["김", "이", "박", "최", "정", "강", "조", "윤", "장", "임"]
KOREAN_FIRST = ["철수", "영희", "민준", "서연", "지훈"]
CYRILLIC = ["Иванов", "Петров", "Сидоров", "Орлова", "Попова", "Смирнов", "Кузнецов", "Волкова", "Зайцев", "Белова"]
CYRILLIC_FIRST = ["Алексей", "Борис", "Вера", "Галина", "Дмитрий"]
TURKISH = ["Yılmaz", "Şahin", "Çelik", "Öztürk", "Işık", "Güneş", "İnce", "Doğan", "Ünal", "Kılıç"]
TURKISH_FIRST = ["İpek", "Ayşe", "Çağrı", "Ömer", "Ilgın"]


def names():
    for family in LATIN:
        for first in FIRST:
            yield family, first
    for families, firsts in ((KOREAN, KOREAN_FIRST), (CYRILLIC, CYRILLIC_FIRST), (TURKISH, TURKISH_FIRST)):
        for family in families:
            for first in firsts:
                yield family, first
    for i in range(50):
        yield f"Zz {i:02}", "Extra"


def png(red, green, blue):
    """A picture of 48 by 48 pixels in one colour."""
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    rows = (b"\0" + bytes((red, green, blue)) * 48) * 48
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", 48, 48, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def card(index, family, first):
    lines = ["BEGIN:VCARD", "VERSION:3.0", f"N:{family};{first};;;", f"FN:{family} {first}",
             f"TEL;TYPE=WORK:+49 89 {index:04}-0", f"TEL;TYPE=CELL:+49 170 {index:04}"]
    if index % 3 == 0:
        lines.append(f"TEL;TYPE=HOME:089 55 {index:04}")
    if index % 7 == 0:
        lines.append(f"TEL;TYPE=FAX:089 66 {index:04}")
    if index % 10 == 0:
        photo = base64.b64encode(png(index % 256, 80, 160)).decode()
        lines.append(f"PHOTO;ENCODING=b;TYPE=PNG:{photo}")
    if index % 5 == 0:
        lines += ["CATEGORIES:Team", f"EMAIL:person{index}@example.org", "NOTE:Met in spring"]
    return lines + ["END:VCARD"]


def main():
    out = []
    for index, (family, first) in enumerate(names()):
        out += card(index, family, first)
        if index in (100, 200):
            out += ["BEGIN:VCARD", "VERSION:3.0", "NOTE:no name and no number", "END:VCARD"]
    print("\r\n".join(out), end="\r\n")


main()
