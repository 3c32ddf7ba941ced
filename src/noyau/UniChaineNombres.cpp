// noyau/UniChaineNombres.cpp
//
// The operations of UniChaine that write numbers, plain and as a language writes them.
#include "noyau/DLocale.h"
#include "noyau/UniChaine.h"

#include <algorithm>
#include <cstdlib>

UniChaine UniChaine::DepuisNombre(int valeur, int base, int largeurMinimale, bool majuscules,
                                  bool signeForcay)
{
    // The width counts digits; more than one for each bit of the widest value is a mistake.
    constexpr int kLargeurMax = 64;
    QString chiffres =
        QString::number(std::abs(static_cast<qint64>(valeur)), std::clamp(base, 2, 36));
    chiffres = chiffres.rightJustified(std::min(largeurMinimale, kLargeurMax), u'0');
    if (majuscules)
        chiffres = chiffres.toUpper();
    if (valeur < 0)
        chiffres.prepend(u'-');
    else if (signeForcay)
        chiffres.prepend(u'+');
    return UniChaine(chiffres);
}

UniChaine UniChaine::DonneNombreFormatay(DLocale locale, int valeur)
{
    return UniChaine(locale.DonneQLocale().toString(valeur));
}

UniChaine UniChaine::DonnePourcentageFormatay(ContexteLocalisation const &, DLocale locale,
                                              double valeur, int decimales, bool sansSymbole)
{
    constexpr int kDecimalesMax = 64; // more than a double has to tell
    QLocale const format = locale.DonneQLocale();
    QString texte = format.toString(valeur * 100.0, 'f', std::clamp(decimales, 0, kDecimalesMax));
    if (sansSymbole)
        return UniChaine(texte);
    // QLocale has no percent pattern. French sets its sign off by the space that also groups its
    // digits; English joins it to the number.
    if (format.language() == QLocale::French)
        texte += format.groupSeparator();
    return UniChaine(texte + format.percent());
}
