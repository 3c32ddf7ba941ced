// galerie/PageVues.h
#pragma once

#include <QStandardItemModel>
#include <QWidget>

class DTreeView;

/// The item views: columns that share the width, an empty tree, check boxes, clicks, and a long
/// tree for the finger.
class PageVues : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRangsDeLArbre = 10'000;

    explicit PageVues(QWidget * parent = nullptr);

    /// Shares the width among the columns when it is first known; the tree does it from then on.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    QWidget * CreeArbresRedimensionnables();
    QWidget * CreeTable();
    QWidget * CreeListeCliquee();
    QWidget * CreeListe();
    QWidget * CreeLongArbre();

    void EgaliseColonnes(int largeur);

    DTreeView * monArbreReparti = nullptr;
    QStandardItemModel mesColonnes;
    QStandardItemModel mesTaches;
    QStandardItemModel mesLettres;
    QStandardItemModel monLongArbre;
};
