// galerie/PageAssistant.h
#pragma once

#include "SaisieImport.h"

#include <QPointer>
#include <QWidget>

#include <optional>

class ApercuFenetre;
class AssistantImport;
class DFilAriane;
class DTreeView;
class QPushButton;
class QStandardItemModel;

/// The wizard that imports a list of words, the breadcrumb that follows it, and the lists that were
/// imported.
class PageAssistant : public QWidget
{
    Q_OBJECT

public:
    /// What outlives the page, which is built anew for each language and theme.
    struct Memoire
    {
        std::optional<SaisieImport> saisie; ///< of the wizard that was open
        bool importFini = false;            ///< the last one was not given up
    };

    explicit PageAssistant(QWidget * parent = nullptr);
    ~PageAssistant() override;

    static Memoire & PreteMemoire();

    /// The wizard that is open, or null.
    AssistantImport * PreteAssistant() const;

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void showEvent(QShowEvent * evenement) override;

private:
    DFilAriane * CreeFil();
    QWidget * CreeApercu();
    QWidget * CreeCommandes();
    QWidget * CreeListes();
    void OuvreAssistant(SaisieImport const & saisie);
    void MontreEtape(int courante);
    void MontreListes();

    void PriseImporter();
    void PriseRetirer();
    void PriseSelection();
    void PriseFini(int resultat);

    DFilAriane * monFil = nullptr;
    AssistantImport * monModele = nullptr; // for the picture
    ApercuFenetre * monApercu = nullptr;
    QPushButton * monBoutonImporter = nullptr;
    QPushButton * monBoutonRetirer = nullptr;
    DTreeView * maVue = nullptr;
    QStandardItemModel * mesListes = nullptr;
    QPointer<AssistantImport> monAssistant;
};
