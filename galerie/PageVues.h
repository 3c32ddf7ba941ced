// galerie/PageVues.h
#pragma once

#include <QStandardItemModel>
#include <QWidget>

class TraceSignaux;

/// The item views: columns that share the width, an empty tree, check boxes, clicks, and a long
/// tree for the finger.
class PageVues : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRangsDeLArbre = 10'000;

    explicit PageVues(QWidget * parent = nullptr);

private:
    QWidget * CreeArbresRedimensionnables();
    QWidget * CreeTable();
    QWidget * CreeListeCliquee();
    QWidget * CreeListe();
    QWidget * CreeLongArbre();

    QStandardItemModel mesColonnes;
    QStandardItemModel mesTaches;
    QStandardItemModel mesLettres;
    QStandardItemModel monLongArbre;
};
