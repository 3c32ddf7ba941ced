// galerie/TraceSignaux.h
#pragma once

#include <QPlainTextEdit>
#include <QVariant>

class QGroupBox;

/// The last signals and events that were heard, one per line, written as a program would.
class TraceSignaux : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TraceSignaux(QString const & nom, QWidget * parent = nullptr);

    void Ajoute(QString const & ligne);

    /// From now on, a line for each time that `emetteur` emits `signal`.
    template <typename Emetteur, typename Classe, typename... Arguments>
    void Suis(Emetteur * emetteur, void (Classe::*signal)(Arguments...), QString const & nom)
    {
        QString const fonction = DonneFonction(*emetteur, nom);
        connect(emetteur, signal, this, [this, fonction](Arguments... arguments) {
            AjouteAppel(fonction, {QVariant::fromValue(arguments)...});
        });
    }

private:
    static QString DonneFonction(QObject const & emetteur, QString const & nom);
    void AjouteAppel(QString const & fonction, QVariantList const & arguments);
};

/// A group box around `trace` that has its name and a button to clear it.
QGroupBox * EncadreTrace(TraceSignaux & trace);

/// `trace` in a row behind its label, as high as told, in pixels.
QWidget * EtiquetteTrace(TraceSignaux & trace, QString const & libelle, int hauteur);
