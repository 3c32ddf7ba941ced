// tests/galerie/BancPageFiltres.h
#pragma once

#include "PageFiltres.h"

#include "ApercuFenetre.h"
#include "TraceSignaux.h"

#include "controls/DTableView.h"
#include "lists/ListePastille.h"
#include "lists/Pastille.h"
#include "noyau/Traductions.h"
#include "search/DChampRecherche.h"

#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

inline QString const kMots =
    u"abri\nabrité\ncélèbre\nchâteau\nété\nétés\nnaïf\nreçu\nrefaire\nretenue\n"
    "arc-en-ciel\nréécouter\nzèbre\n"_s;

/// A page over a short list of words of its own, without criteria.
class BancPageFiltres
{
protected:
    void Prepare();
    void Range();
    void Refais();
    void Montre(QSize const & taille = QSize(900, 700));
    QString Ecris(QString const & texte);
    template <typename Type>
    Type & Prete(QString const & nom = {}) const;
    BarreFiltreMots & PreteBarre() const { return Prete<BarreFiltreMots>(); }
    QLineEdit & PreteChamp() const { return *PreteBarre().PreteComboDeRecherche()->lineEdit(); }
    BarreDeFiltre & PreteBarreDOrdre() const;
    QString DonneCardinalitay(BarreDeFiltre const & barre) const;
    QString DonneMots() const;
    QStringList DonnePastilles() const;
    bool PastillesVisibles() const;
    Pastille * TrouvePastille(QString const & titre) const;
    void Choisis(BarreFiltreMots::eFiltre filtre, int choix);

    QTemporaryDir monDossier;
    std::unique_ptr<PageFiltres> maPage;
};

inline void BancPageFiltres::Prepare()
{
    QVERIFY(monDossier.isValid());
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QLocale::setDefault(QLocale(QLocale::French));
    PageFiltres::PreteMemoire() = {};
    PageFiltres::PreteMemoire().fichier = Ecris(kMots);
    PageFiltres::PreteMemoire().etat = {};
    Refais();
}

inline void BancPageFiltres::Range()
{
    maPage.reset();
    PageFiltres::PreteMemoire() = {};
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

inline void BancPageFiltres::Refais()
{
    maPage.reset();
    maPage = std::make_unique<PageFiltres>();
}

// With its words.
inline void BancPageFiltres::Montre(QSize const & taille)
{
    maPage->resize(taille);
    maPage->show();
    QVERIFY(QTest::qWaitForWindowActive(maPage.get()));
    QTRY_VERIFY(DonneCardinalitay(PreteBarre()).contains(u"mot"_s) &&
                !DonneCardinalitay(PreteBarre()).contains(u'…'));
}

inline QString BancPageFiltres::Ecris(QString const & texte)
{
    QFile fichier(monDossier.filePath(u"mots"_s));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        return {};
    return fichier.fileName();
}

template <typename Type>
Type & BancPageFiltres::Prete(QString const & nom) const
{
    auto * const objet = maPage->findChild<Type *>(nom);
    Q_ASSERT(objet);
    return *objet;
}

inline BarreDeFiltre & BancPageFiltres::PreteBarreDOrdre() const
{
    for (auto * const barre : maPage->findChildren<BarreDeFiltre *>())
        if (!qobject_cast<BarreFiltreMots *>(barre))
            return *barre;
    Q_UNREACHABLE();
}

inline QString BancPageFiltres::DonneCardinalitay(BarreDeFiltre const & barre) const
{
    for (auto const * const etiquette :
         barre.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
        return etiquette->text();
    return {};
}

inline QString BancPageFiltres::DonneMots() const
{
    QAbstractItemModel const & modele = *Prete<DTableView>().model();
    QStringList mots;
    for (int ligne = 0; ligne < modele.rowCount(); ++ligne)
        mots.append(modele.index(ligne, ModeleMots::kMot).data().toString());
    return mots.join(u' ');
}

// By the titles that their removal names.
inline QStringList BancPageFiltres::DonnePastilles() const
{
    QStringList titres;
    for (auto * const widget : Prete<ListePastille>().PreteListeWidgets())
        titres.append(qobject_cast<Pastille *>(widget)->accessibleName());
    return titres;
}

// Qt shows what has been added to a window later.
inline bool BancPageFiltres::PastillesVisibles() const
{
    auto const pastilles = Prete<ListePastille>().PreteListeWidgets();
    return std::all_of(pastilles.begin(), pastilles.end(),
                       [](QWidget const * pastille) { return pastille->isVisible(); });
}

inline Pastille * BancPageFiltres::TrouvePastille(QString const & titre) const
{
    for (auto * const widget : Prete<ListePastille>().PreteListeWidgets())
        if (widget->accessibleName() == titre)
            return qobject_cast<Pastille *>(widget);
    return nullptr;
}

inline void BancPageFiltres::Choisis(BarreFiltreMots::eFiltre filtre, int choix)
{
    PreteBarre().PreteComboBox(filtre)->setCurrentIndex(choix);
}
