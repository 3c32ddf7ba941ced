// search/WidgetRechercheAbstrait.h
#pragma once

#include "FabrelGuiExport.h"

#include "search/CstRecherche.h"

#include "noyau/UniChaine.h"

#include <QRegularExpression>
#include <QString>

class QWidget;
class UtilisateurWidgetRecherche;

/// The base of the search front ends, `BarreRecherche` and `DialogueRechercher`: it keeps what the
/// user asks for and turns every gesture into one call on the host, `UtilisateurWidgetRecherche`.
/// It searches nothing itself.
///
/// It is a second base beside a widget, not a `QObject`; `DonneMoiEnWidget` leads back to the
/// widget. The strings and the options are as fresh as the last refresh: each gesture that searches
/// or replaces refreshes them just before it calls the host, so read them from inside that call.
/// Clearing, cancelling and `EffectuerRecherche` leave what the last refresh read. Without a host
/// the same gestures still refresh.
class FABRELGUI_EXPORT WidgetRechercheAbstrait
{
public:
    explicit WidgetRechercheAbstrait(bool permetRemplacer = false);
    /// A copy has the same host.
    WidgetRechercheAbstrait(WidgetRechercheAbstrait const &) = default;
    WidgetRechercheAbstrait & operator=(WidgetRechercheAbstrait const &) = default;
    virtual ~WidgetRechercheAbstrait();

    /// Tells the user that nothing was found: in a list, or in a text. The options choose the
    /// words: `kBoucler` is looked at first, then `kBas`.
    virtual void AfficheMessageTexteIntrouvable(bool pourListe) const = 0;
    /// Opens the front end, and searches at once. With a new search the host forgets what it found,
    /// the text, unless it is blank, goes to the field, and the field takes the focus; otherwise
    /// the text is ignored.
    ///
    /// CAUTION: the host is asked to search even when there is nothing to search for.
    virtual void AfficheToi(CstRecherche::eTypeRecherche type, UniChaine chaine);
    /// Shows the front end, and asks nothing of the host. One that was hidden takes the focus.
    virtual void AfficheToi() = 0;
    /// What the host found: the number of the current match, from 1, and how many there are. It is
    /// ignored where no counter is offered.
    virtual void ActualiseOccurrences(int const & position, int const & total);
    /// Tells that the host begins, and ends, to replace everything.
    virtual void MetEnCoursDeRemplacerTout(bool enCours);
    virtual void CacheToi() = 0;
    virtual QWidget * DonneMoiEnWidget() = 0;
    /// Searches backward for a text that the host chose. An empty one does nothing; blanks are
    /// searched for.
    ///
    /// Deliberate: nothing is refreshed, the options are those of the last gesture.
    virtual void EffectuerRecherche(UniChaine const & chaine);
    virtual void MetsChaineAChercher(UniChaine chaine) = 0;
    virtual void ModifieSensRecherche(CstRecherche::eTypeRecherche type) = 0;
    virtual void PrendsChaineRecherche(QString const & chaine) = 0;
    virtual void PrendsChaineRemplacement(QString const & chaine) = 0;
    /// Gives the focus to the search field.
    virtual void PrendsFocus() = 0;
    virtual void ChercherSuivant();
    virtual void ChercherPrecedent();
    virtual void PriseBoutonFermer() = 0;

    QString const & DonneChaineRecherche() const { return maChaineRecherche; }
    QString const & DonneChaineRemplacement() const { return maChaineRemplacement; }
    /// Bits of `CstRecherche::eOption`.
    short DonneOptions() const { return mesOptions; }
    void PrendsOptions(short options) { mesOptions = options; }
    CstRecherche::eTypeRecherche DonneSensRecherche() const { return monSensRecherche; }
    /// Null for none. Not owned.
    void MetsCallback(UtilisateurWidgetRecherche * callback) { monCallback = callback; }

    /// The search text as a regular expression, for each of the three modes. None has an option:
    /// a host adds `QRegularExpression::CaseInsensitiveOption` where the case does not matter, and
    /// `UseUnicodePropertiesOption` where letters with accents belong to words.
    QRegularExpression DonneExpRegContient() const;
    QRegularExpression DonneExpRegCommencePar() const;
    QRegularExpression DonneExpRegMotEntier() const;
    static QRegularExpression DonneExpRegContient(QString const & chaine);
    static QRegularExpression DonneExpRegCommencePar(QString const & chaine);
    static QRegularExpression DonneExpRegMotEntier(QString const & chaine);

    // The gestures of the user.

    void BoutonChercher();
    void BoutonRemplacer();
    /// Every match, whatever the direction: `kBoucler` and `kBas` are set.
    void BoutonRemplacerTout();
    void BoutonAnnulerRemplacerTout();
    void NettoyerRecherche();
    /// Each keystroke in the search field; the host sees `kTexteEdite`.
    void TexteDeRechercheChanger();

protected:
    /// Reads the strings and the options anew from the controls.
    virtual void ActualiserEtatPanneau() = 0;
    virtual void PriseActualiserEtatPanneau() = 0;
    virtual void PriseBoutonChercher() = 0;
    virtual void PriseChercherSuivant() = 0;
    virtual void PriseChercherPrecedent() = 0;
    virtual void PriseBoutonRemplacerTout() = 0;
    virtual void PriseBoutonRemplacer() = 0;
    virtual void PriseBoutonAnnuler();

    bool DonnePermetRemplacer() const { return jePermetsRemplacer; }
    void RetiensChaineRecherche(QString const & chaine) { maChaineRecherche = chaine; }
    void RetiensChaineRemplacement(QString const & chaine) { maChaineRemplacement = chaine; }
    void RetiensSensRecherche(CstRecherche::eTypeRecherche sens) { monSensRecherche = sens; }

private:
    void AppelleHote(void (UtilisateurWidgetRecherche::*appel)());

    bool jePermetsRemplacer;
    QString maChaineRecherche;
    QString maChaineRemplacement;
    short mesOptions = 0;
    CstRecherche::eTypeRecherche monSensRecherche = CstRecherche::kNouvelleRecherche;
    UtilisateurWidgetRecherche * monCallback = nullptr;
};
