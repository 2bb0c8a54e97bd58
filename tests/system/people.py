#!/usr/bin/env python3
"""Writes a vCard file of 300 people to standard output: Latin, Korean, Cyrillic and Turkish names, several numbers
each, some with photos, groups and notes, and between them two cards that are broken."""

import itertools

LATIN = ["Adams", "Baker", "Clarke", "Dubois", "Eriksson", "Fischer", "García", "Hansen", "Ivanović", "Jónsson",
         "Kowalski", "Łukasik", "Müller", "Novák", "Østergaard", "Petit", "Quinn", "Rossi", "Šimić", "Tóth"]
FIRST = ["Anna", "Bruno", "Chloë", "David", "Élise"]
KOREAN = ["김", "이", "박", "최", "정", "강", "조", "윤", "장", "임"]
KOREAN_FIRST = ["철수", "영희", "민준", "서연", "지훈"]
CYRILLIC = ["Иванов", "Петров", "Сидоров", "Орлова", "Попова", "Смирнов", "Кузнецов", "Волкова", "Зайцев", "Белова"]
CYRILLIC_FIRST = ["Алексей", "Борис", "Вера", "Галина", "Дмитрий"]
TURKISH = ["Yılmaz", "Şahin", "Çelik", "Öztürk", "Işık", "Güneş", "İnce", "Doğan", "Ünal", "Kılıç"]
TURKISH_FIRST = ["İpek", "Ayşe", "Çağrı", "Ömer", "Ilgın"]
# A picture of 48 by 48 pixels in one colour.
PHOTO = ("iVBORw0KGgoAAAANSUhEUgAAADAAAAAwCAIAAADYYG7QAAAAOklEQVR42u3OQQ0AAAgEoItjHCMa1RbOBxsBSPW8EiEhISEhISEh"
         "ISEhISEhISEhISEhISEhISGhOwv6jdiI0bagEQAAAABJRU5ErkJggg==")


def names():
    for families, firsts in ((LATIN, FIRST), (KOREAN, KOREAN_FIRST), (CYRILLIC, CYRILLIC_FIRST),
                             (TURKISH, TURKISH_FIRST)):
        yield from itertools.product(families, firsts)
    for i in range(50):
        yield f"Zz {i:02}", "Extra"


def card(index, family, first):
    lines = ["BEGIN:VCARD", "VERSION:3.0", f"N:{family};{first};;;", f"FN:{family} {first}",
             f"TEL;TYPE=WORK:+49 89 {index:04}-0", f"TEL;TYPE=CELL:+49 170 {index:04}"]
    if index % 3 == 0:
        lines.append(f"TEL;TYPE=HOME:089 55 {index:04}")
    if index % 10 == 0:
        lines.append(f"PHOTO;ENCODING=b;TYPE=PNG:{PHOTO}")
    if index % 5 == 0:
        lines += ["CATEGORIES:Team", f"EMAIL:person{index}@example.org", "NOTE:Met in spring"]
    return lines + ["END:VCARD"]


for index, (family, first) in enumerate(names()):
    print("\r\n".join(card(index, family, first)), end="\r\n")
    if index in (100, 200):
        print("BEGIN:VCARD\r\nVERSION:3.0\r\nNOTE:no name and no number\r\nEND:VCARD", end="\r\n")
