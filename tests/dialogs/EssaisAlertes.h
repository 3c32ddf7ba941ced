// dialogs/EssaisAlertes.h
#pragma once

#include "dialogs/DAlerte.h"
#include "dialogs/DMessageBox.h"
#include "dialogs/StockageReponse.h"
#include "noyau/DAlerteInfo.h"
#include "noyau/ExecutionSilencieuse.h"
#include "noyau/JournalSimulay.h"
#include "noyau/Traductions.h"
#include "outils/BureauSimulay.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

// What the tests of the alerts share.
namespace EssaisAlertes {

inline constexpr int kDelaiRepondant = 10;   // ms between two looks at the screen
inline constexpr int kDelaiAbandon = 10'000; // ms until a box that nobody answers is given up
inline QString const kCase = QStringLiteral("NePlusMAviser");

/// The top-level windows of a class, hidden ones too.
template <typename T>
QList<T *> Fenetres()
{
    QList<T *> trouvees;
    for (QWidget * const fenetre : QApplication::topLevelWidgets())
        if (auto * const voulue = qobject_cast<T *>(fenetre))
            trouvees.append(voulue);
    return trouvees;
}

/// What a failed test leaves on screen: the next one is not to fail for it.
inline void RetireRestes()
{
    if (QTest::currentTestFailed())
        qDeleteAll(Fenetres<QDialog>());
}

/// The message box that the user has in front, or null.
inline DMessageBox * BoiteDevant()
{
    if (auto * const modale = qobject_cast<DMessageBox *>(QApplication::activeModalWidget()))
        return modale->isVisible() ? modale : nullptr;
    for (DMessageBox * const boite : Fenetres<DMessageBox>())
        if (boite->isVisible())
            return boite;
    return nullptr;
}

inline QCheckBox * Case(QMessageBox const & boite)
{
    return boite.findChild<QCheckBox *>(kCase);
}

/// At its indicator: the text may end anywhere.
inline void Coche(QMessageBox const & boite)
{
    if (QCheckBox * const caseACocher = Case(boite))
        QTest::mouseClick(caseACocher, Qt::LeftButton, {}, QPoint(6, caseACocher->height() / 2));
}

/// The button that shows `texte`, access key or not; null for none.
inline QAbstractButton * Bouton(QMessageBox const & boite, QString const & texte)
{
    for (QAbstractButton * const bouton : boite.buttons())
        if (bouton->text().remove(QLatin1Char('&')) == texte)
            return bouton;
    return nullptr;
}

/// The buttons in the order in which they were made.
inline QList<QPushButton *> BoutonsDansLOrdre(QMessageBox const & boite)
{
    QList<QPushButton *> boutons;
    for (QDialogButtonBox const * const barre : boite.findChildren<QDialogButtonBox *>())
        boutons += barre->findChildren<QPushButton *>(Qt::FindDirectChildrenOnly);
    return boutons;
}

inline void Clique(QAbstractButton * bouton)
{
    if (bouton)
        QTest::mouseClick(bouton, Qt::LeftButton);
}

/// As from the keyboard: to the window, which hands it to what has the focus.
inline void Tape(QWidget & fenetre, Qt::Key touche, Qt::KeyboardModifiers modificateurs = {})
{
    QTest::keyClick(fenetre.windowHandle(), touche, modificateurs);
}

/// The user: does something to each message box in front, once, from the event loop.
///
/// A box that stays on screen for `kDelaiAbandon` is taken away, so that a call that blocks for
/// ever fails its test instead of all tests.
class Repondant : public QObject
{
public:
    using Action = std::function<void(DMessageBox &)>;

    explicit Repondant(Action action)
        : monAction(std::move(action))
    {
        maMinuterie.setInterval(kDelaiRepondant);
        QObject::connect(&maMinuterie, &QTimer::timeout, this, &Repondant::Regarde);
        maMinuterie.start();
        QTimer::singleShot(kDelaiAbandon, this, &Repondant::Abandonne);
    }

    int DonneNombre() const { return static_cast<int>(mesBoites.size()); }

private:
    void Regarde()
    {
        DMessageBox * const boite = BoiteDevant();
        if (!boite || mesBoites.contains(boite))
            return;
        mesBoites.append(boite);
        monAction(*boite);
    }

    static void Abandonne()
    {
        for (DMessageBox * const boite : Fenetres<DMessageBox>()) {
            qWarning("a message box was left unanswered");
            boite->QDialog::done(0);
        }
    }

    Action monAction;
    QTimer maMinuterie;
    QList<QPointer<DMessageBox>> mesBoites;
};

/// Keeps what it receives.
class ReceveurSimulay : public DDialogue::DAlerteReceveur
{
public:
    void TraiteReponse(int const & idMessage, int reponse) override
    {
        identifiants << idMessage;
        reponses << reponse;
        if (action)
            action();
    }

    QList<int> identifiants;
    QList<int> reponses;
    std::function<void()> action;
};

/// A process without remembered answers in which nothing is silent and French is spoken, with a
/// journal and a desktop of its own, for as long as it lives.
class Banc
{
public:
    Banc()
    {
        auto leBureau = std::make_unique<BureauSimulay>();
        bureau = leBureau.get();
        PlateformeBureau::Installe(std::move(leBureau));
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        for (auto const type : {DDialogue::StockeurParDefaut, DDialogue::StockeurNePlusMAviser})
            StockageReponse::Initialise(type, UniChaine(DonneFichier(type)), QSettings::IniFormat);
    }
    Banc(Banc const &) = delete;
    Banc & operator=(Banc const &) = delete;
    ~Banc()
    {
        ExecutionSilencieuse::Arrete();
        ExecutionSilencieuse::OublieDialoguesJournalises();
        StockageReponse::LibereSingletons();
        StockageReponse::assocTypQSettings.clear();
        Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
        PlateformeBureau::Installe(nullptr);
    }

    QString DonneFichier(DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser) const
    {
        return dossier.filePath(QStringLiteral("reponses%1.ini").arg(int(type)));
    }

    /// Writes the file of a store with this one answer.
    void Retiens(QString const & guid, quint32 reponse,
                 DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser) const
    {
        QFile fichier(DonneFichier(type));
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(QStringLiteral("[messageMemoire]\n%1=%2\n")
                          .arg(guid, QString::number(static_cast<qint32>(reponse)))
                          .toUtf8());
    }

    /// The answers that the file of a store holds, as "guid=number".
    QStringList DonneReponses(DDialogue::eTypStockeur type = DDialogue::StockeurNePlusMAviser) const
    {
        QFile fichier(DonneFichier(type));
        if (!fichier.open(QIODevice::ReadOnly))
            return {};
        QStringList lignes = QString::fromUtf8(fichier.readAll()).split(QLatin1Char('\n'));
        lignes.removeAll(QString());
        lignes.removeAll(QStringLiteral("[messageMemoire]"));
        return lignes;
    }

    QTemporaryDir dossier;
    BureauSimulay * bureau = nullptr;
    JournalSimulay journal;
};

} // namespace EssaisAlertes
