// galerie/TableMots.cpp
#include "TableMots.h"

#include "TexteReplie.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr char16_t kFinTable = 0x180; // the letters of European languages stand below

quint8 DonneAccentIsole(QChar caractere)
{
    switch (caractere.unicode()) {
    case 0x0300:
        return TableMots::kGrave;
    case 0x0301:
        return TableMots::kAigu;
    case 0x0302:
        return TableMots::kCirconflexe;
    case 0x0308:
        return TableMots::kTrema;
    case 0x0327:
        return TableMots::kCedille;
    default:
        return caractere.isMark() ? TableMots::kAutreAccent : TableMots::kSansAccent;
    }
}

quint8 ChercheAccents(QChar caractere)
{
    quint8 accents = TableMots::kSansAccent;
    QString const decompose = QString(caractere).normalized(QString::NormalizationForm_D);
    for (QChar const element : decompose)
        accents |= DonneAccentIsole(element);
    return accents;
}

bool EstMinusculeSimple(QChar caractere)
{
    return caractere >= u'a' && caractere <= u'z';
}

void AjouteUtf8(std::string & cles, QString const & cle)
{
    bool const ascii =
        std::all_of(cle.cbegin(), cle.cend(), [](QChar c) { return c.unicode() < 0x80; });
    if (!ascii)
        cles += cle.toStdString();
    else
        for (QChar const caractere : cle)
            cles += static_cast<char>(caractere.unicode());
}

} // namespace

TableMots::TableMots(QString const & texte)
{
    auto const lignes = static_cast<std::size_t>(texte.count(u'\n')) + 1;
    mesMots.reserve(texte.size());
    mesCles.reserve(static_cast<std::size_t>(texte.size()));
    mesDebuts.reserve(lignes + 1);
    mesDebutsDeCles.reserve(lignes + 1);
    mesAttributs.reserve(lignes);

    QStringView const vue(texte);
    QString cle; // one for all words: nothing is allocated for each
    cle.reserve(std::numeric_limits<quint8>::max());
    for (qsizetype debut = 0; debut < vue.size();) {
        qsizetype const trouvay = vue.indexOf(u'\n', debut);
        qsizetype const fin = trouvay < 0 ? vue.size() : trouvay;
        AjouteMot(vue.mid(debut, fin - debut).trimmed(), cle);
        debut = fin + 1;
    }
}

std::string TableMots::DonneCle(QStringView texte)
{
    QString cle;
    for (QChar const caractere : texte)
        AjouteReplie(cle, caractere);
    return cle.toStdString();
}

quint8 TableMots::DonneAccents(QChar caractere)
{
    static std::array<quint8, kFinTable> const table = [] {
        std::array<quint8, kFinTable> accents{};
        for (char16_t code = 0; code < kFinTable; ++code)
            accents[code] = ChercheAccents(code);
        return accents;
    }();
    char16_t const code = caractere.unicode();
    return code < kFinTable ? table[code] : ChercheAccents(caractere);
}

QStringView TableMots::DonneMot(int indice) const
{
    std::size_t const rang = Rang(indice);
    return QStringView(mesMots).mid(mesDebuts[rang], mesDebuts[rang + 1] - mesDebuts[rang]);
}

std::string_view TableMots::DonneCle(int indice) const
{
    std::size_t const rang = Rang(indice);
    return {mesCles.data() + mesDebutsDeCles[rang],
            mesDebutsDeCles[rang + 1] - mesDebutsDeCles[rang]};
}

void TableMots::AjouteMot(QStringView mot, QString & cle)
{
    cle.resize(0); // keeps its room
    int lettres = 0;
    quint8 accents = kSansAccent;
    for (QChar const caractere : mot) {
        AjouteReplie(cle, caractere);
        bool const simple = EstMinusculeSimple(caractere);
        lettres += simple || caractere.isLetter() ? 1 : 0;
        if (!simple)
            accents |= DonneAccents(caractere);
    }
    if (cle.isEmpty())
        return;
    QChar const premier = cle.front();
    quint8 const initiale =
        EstMinusculeSimple(premier) ? static_cast<quint8>(premier.unicode() - u'a' + 1) : 0;
    mesAttributs.push_back(
        {static_cast<quint8>(std::min<int>(lettres, std::numeric_limits<quint8>::max())), initiale,
         accents});
    mesMots += mot;
    AjouteUtf8(mesCles, cle);
    mesDebuts.push_back(static_cast<quint32>(mesMots.size()));
    mesDebutsDeCles.push_back(static_cast<quint32>(mesCles.size()));
}
