#include "numbertypes.h"

#include "contactdata.h"

#include <QObject>

#include <array>

/// The words by kind, in the order in which labels are searched for them.
static std::array<QString, 5> kindWords()
{
    return {QObject::tr("Company"), QObject::tr("Mobile"), QObject::tr("Home"), QObject::tr("Fax"),
            QObject::tr("Etc")};
}

QString getNumberTypeStr(int type)
{
    const bool known = type >= ContactData::Company && type <= ContactData::Etc;
    return kindWords()[known ? type : ContactData::Etc] + ' ' + QObject::tr("Number");
}

bool isNumberLabel(const QString &label)
{
    return label.contains(QObject::tr("Number"));
}

int getNumberType(const QString &label)
{
    if (!isNumberLabel(label))
        return ContactData::Company;
    const auto words = kindWords();
    for (int kind = ContactData::Company; kind <= ContactData::Etc; ++kind) {
        if (label.contains(words[kind]))
            return kind;
    }
    return ContactData::Company;
}

QString numberPicture(int type)
{
    static constexpr std::array<const char *, 5> pictures
        = {"menu_icon_office", "menu_icon_mobile", "menu_icon_home", "menu_icon_fax", "menu_icon_etc_2"};
    const bool known = type >= ContactData::Company && type <= ContactData::Etc;
    return QLatin1String(":/contact/images/") + pictures[known ? type : ContactData::Etc];
}
