// galerie/Langues.cpp
#include "Langues.h"

using namespace Qt::StringLiterals;

QList<DescriptionLangue> const & DonneLangues()
{
    static QList<DescriptionLangue> const langues = {
        {kLangueFrancais, u"Français"_s, u"fr"_s},
        {kLangueAnglais, u"English"_s, u"en"_s},
        {kLangueAnglaisCanada, u"English (Canada)"_s, u"en_CA"_s},
    };
    return langues;
}

std::optional<eLangue> DonneLangueDuCode(QString const & code)
{
    for (DescriptionLangue const & description : DonneLangues())
        if (description.code == code)
            return description.langue;
    return std::nullopt;
}
