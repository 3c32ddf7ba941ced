// galerie/CtrlPriseEnMain.h
#pragma once

#include "navigation/CtrlFenPriseEnMainInterface.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

/// What the gallery tells the onboarding window of itself, and the topics that were seen.
class CtrlPriseEnMain : public QObject, public CtrlFenPriseEnMainInterface
{
    Q_OBJECT

public:
    explicit CtrlPriseEnMain(QObject * parent = nullptr);
    ~CtrlPriseEnMain() override;

    /// Where it is kept what was seen; in memory as long as no file is named.
    static void MetsFichier(QString const & fichier);
    /// The keys of the topics in the gallery's document.
    static QStringList DonneCles();

    int CompteVus() const;

    void MetsReglage(UniChaine cle, bool coche) override;
    UniChaine DonneNomProduit() override;
    UniChaine DonneVersionNumerique() override;
    /// `premier` stands for French, `second` for English.
    UniChaine DonneModulesLangue(bool premier, bool second) override;

Q_SIGNALS:
    void SignalReglageChangay();

private:
    std::vector<std::unique_ptr<ReglageBooleen>> mesMarques;
};
