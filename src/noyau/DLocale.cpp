// noyau/DLocale.cpp
#include "noyau/DLocale.h"

QLocale DLocale::DonneQLocale() const
{
    using namespace Qt::StringLiterals;
    switch (maLangue) {
    case kLangueFrancais:
        return QLocale(QLocale::French);
    case kLangueAnglais:
        return QLocale(QLocale::English);
    case kLangueAnglaisCanada:
        return QLocale(u"en_CA"_s);
    case kLangueInconnue:
        break;
    }
    return QLocale::c();
}
