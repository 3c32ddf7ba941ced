// galerie/TexteReplie.cpp
#include "TexteReplie.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t kFinTable = 0x180; // the letters of European languages stand below

QString Replie(QChar caractere)
{
    switch (caractere.unicode()) {
    case u'œ':
    case u'Œ':
        return u"oe"_s;
    case u'æ':
    case u'Æ':
        return u"ae"_s;
    default:
        break;
    }
    QString replie;
    QString const decompose = QString(caractere).normalized(QString::NormalizationForm_D);
    for (QChar const element : decompose)
        if (element.isLetterOrNumber() || element.isSurrogate())
            replie += element.toCaseFolded();
    return replie;
}

} // namespace

void AjouteReplie(QString & cle, QChar caractere)
{
    static std::array<QString, kFinTable> const table = [] {
        std::array<QString, kFinTable> replis;
        for (char16_t code = 0; code < kFinTable; ++code)
            replis[code] = Replie(code);
        return replis;
    }();
    char16_t const code = caractere.unicode();
    if (code >= u'a' && code <= u'z') // most of them
        cle += caractere;
    else
        cle += code < kFinTable ? table[code] : Replie(caractere);
}
