// galerie/RechercheTexte.cpp
#include "RechercheTexte.h"

#include "search/CstRecherche.h"
#include "search/WidgetRechercheAbstrait.h"

bool RechercheTexte::Demande(QString const & chaine, short options)
{
    constexpr short kOptionsDuTexte =
        CstRecherche::kMotEntier | CstRecherche::kCommencePar | CstRecherche::kRespecterCasse;

    QString const autreChaine = OccurrencesTexte::SansInsecables(chaine);
    auto const autresOptions = static_cast<short>(options & kOptionsDuTexte);
    bool const memeChaine = autreChaine == maChaine;
    bool const memesOptions = autresOptions == mesOptions;
    if (memeChaine && memesOptions)
        return false;
    maChaine = autreChaine;
    mesOptions = autresOptions;
    monDocument = nullptr;
    return memeChaine;
}

bool RechercheTexte::Cherche(QTextDocument & document)
{
    if (&document == monDocument && document.revision() == maRevision)
        return false;
    monDocument = &document;
    maRevision = document.revision();
    mesOccurrences = {};
    if (!EstVide())
        mesOccurrences = Trouve(OccurrencesTexte::SansInsecables(document.toRawText()));
    return true;
}

OccurrencesTexte RechercheTexte::Trouve(QString const & texte) const
{
    bool const respecte = (mesOptions & CstRecherche::kRespecterCasse) != 0;
    QRegularExpression expression;
    if ((mesOptions & CstRecherche::kMotEntier) != 0) // it begins with the text, too
        expression = WidgetRechercheAbstrait::DonneExpRegMotEntier(maChaine);
    else if ((mesOptions & CstRecherche::kCommencePar) != 0)
        expression = WidgetRechercheAbstrait::DonneExpRegCommencePar(maChaine);
    else // an expression would find the same, ten times as slowly where a letter is frequent
        return {texte, maChaine, respecte ? Qt::CaseSensitive : Qt::CaseInsensitive};
    // Letters with accents belong to words.
    QRegularExpression::PatternOptions motif = QRegularExpression::UseUnicodePropertiesOption;
    if (!respecte)
        motif |= QRegularExpression::CaseInsensitiveOption;
    expression.setPatternOptions(motif);
    return {texte, expression};
}
