// galerie/PageListeModifiable.h
#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

class QCheckBox;
class QLabel;
class QStandardItem;
class QToolButton;
class TraceSignaux;
class WidgetListeEditable;
class WidgetListeEditableAvecListeChoix;
class WidgetListeEditableCochable;
class WidgetListeEditableDragAndDrop;

/// The editable list as a personal glossary, and its variants: rows to check, rows to move, and an
/// editor that proposes words.
///
/// What the user has changed outlives the page, which is built anew for each language and theme.
class PageListeModifiable : public QWidget
{
    Q_OBJECT

public:
    explicit PageListeModifiable(QWidget * parent = nullptr);
    ~PageListeModifiable() override;

protected:
    void showEvent(QShowEvent * evenement) override;

private:
    QWidget * CreeGlossaire();
    void CreeFleches();
    QWidget * CreeTrace();
    QWidget * CreeTaches();
    QWidget * CreeEtapes();
    QWidget * CreeMots();
    void Branche();
    void SuisSignaux();
    void ActualiseEntete();

    void PriseTri();
    void PriseModifiable(bool modifiable);
    void PriseSelection();
    void PriseMonter();
    void PriseDescendre();
    void PriseMenu(QList<QStandardItem *> const & items, QPoint const & position);
    void PriseCopier();
    void PriseDupliquer();

    WidgetListeEditable * monGlossaire = nullptr;
    QCheckBox * maCaseTri = nullptr;
    QCheckBox * maCaseModifiable = nullptr;
    QToolButton * monBoutonMonter = nullptr;
    QToolButton * monBoutonDescendre = nullptr;
    TraceSignaux * maTrace = nullptr;
    WidgetListeEditableCochable * mesTaches = nullptr;
    WidgetListeEditableDragAndDrop * mesEtapes = nullptr;
    WidgetListeEditableAvecListeChoix * mesMots = nullptr;
    QLabel * monMessageMots = nullptr;
    QList<WidgetListeEditable *> mesListes; // all of them
    QStringList maLigneDuMenu;              // the texts of the row that the menu is for
};
