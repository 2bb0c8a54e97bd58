#!/usr/bin/env python3
"""Makes the company that the demonstration directory serves: tools/dservice/demo/company.csv, a thousand people.

The outcome is the same at each run. All numbers are from the ranges that are kept free for fiction, or are extensions.
"""
import csv
import random
from pathlib import Path

FILE = Path(__file__).resolve().parent.parent / "tools/dservice/demo/company.csv"
PEOPLE = 1000

# Per language: how often it comes, given names, family names, how a name is put together, the mobile numbers.
LANGUAGES = [
    (40, "Emma Oliver Charlotte Liam Amelia Noah Sophia James Grace Henry Alice Thomas Hannah Robert Zoë Chloé "
         "Søren Łukasz Björn José Françoise Jürgen Márta Niamh Sean Siobhán René Åsa Mia Paul",
     "Anderson Baker Campbell Davies Edwards Foster Graham Hughes O'Brien Jensen Kowalski Lindström Müller Nguyen "
     "Østergaard Peters Quinn Roberts Schäfer Taylor Underwood Vaughan Weiß Young Zając García Lefèvre Novák",
     "{given} {family}", "+1202555{:04d}"),
    (30, "민준 서연 지우 하윤 도윤 서준 은우 시우 수아 지호 예린 현우 지민 유진 철수 영희 상훈 미경 동현 나래",
     "김 이 박 최 정 강 조 윤 장 임 한 오 서 신 권 황 안 송 전 홍",
     "{family}{given}", "+82100000{:04d}"),
    (15, "Анна Иван Мария Дмитрий Ольга Сергей Елена Алексей Наталья Фёдор Татьяна Юрий Ирина Павел",
     "Иваненко Петренко Шевчук Бондарь Ткаченко Мельник Кравец Ковальчук Зуб Щербак Чайка Юрченко Яремчук Эль",
     "{given} {family}", "+70000000{:04d}"),
    (15, "Ayşe Mehmet Fatma Mustafa Zeynep Ahmet Elif Ömer İrem Çağla Gökhan Şule Işıl Uğur Barış Özge",
     "Yılmaz Kaya Demir Çelik Şahin Yıldız Öztürk Aydın Arslan Doğan Kılıç İnce Işık Güneş Ünal",
     "{given} {family}", "+9050000{:05d}"),
]
DEPARTMENTS = [
    ("Sales", "Account Manager;Sales Engineer;Sales Assistant"),
    ("Research & Development", "Software Engineer;Hardware Engineer;Test Engineer;Architect"),
    ("Customer Service", "Service Agent;Service Engineer"),
    ("Finance", "Accountant;Controller"),
    ("Human Resources", "Recruiter;Personnel Officer"),
    ("Production", "Technician;Shift Leader;Planner"),
    ("Logistics", "Dispatcher;Storekeeper"),
    ("Legal", "Counsel"),
]
TYPES = ["Office"] * 8 + ["Home Office", "Shared Desk"]


def person(chance, extension):
    _, given, family, pattern, mobile = chance.choices(LANGUAGES, [language[0] for language in LANGUAGES])[0]
    name = pattern.format(given=chance.choice(given.split()), family=chance.choice(family.split()))
    department, positions = chance.choice(DEPARTMENTS)
    position = chance.choice(positions.split(";"))
    if extension % 40 == 0:
        position = "Head of " + department
    # Not everybody has one.
    number = mobile.format(extension) if chance.random() < 0.8 else ""
    return [name, extension, chance.choice(TYPES), position, department, number]


def main():
    chance = random.Random(1000)
    FILE.parent.mkdir(parents=True, exist_ok=True)
    with FILE.open("w", encoding="utf-8", newline="") as out:
        table = csv.writer(out, lineterminator="\n")
        table.writerow(["name", "number", "type", "position", "department", "mobile"])
        table.writerows(person(chance, 2000 + count) for count in range(PEOPLE))


if __name__ == "__main__":
    main()
