// controls/ElidedLabel.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>
#include <QString>

class QPainter;

/// A label of several lines. What does not fit in its height is elided at the end of the last line
/// that does; there is always one line.
///
/// The text is plain and breaks between words; a line feed ends a line. It takes the whole widget,
/// over the frame if there is one.
class FABRELGUI_EXPORT ElidedLabel : public QFrame
{
    Q_OBJECT
    // Nobody but the label's owner changes the text, so there is no signal for it.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool isElided READ isElided NOTIFY elisionChanged)

public:
    explicit ElidedLabel(QString const & texte, QWidget * parent = nullptr);

    void setText(QString const & texte);
    QString text() const;
    /// As last painted.
    bool isElided() const;

Q_SIGNALS:
    /// The text is elided, or fits, other than at the last painting. Emitted after painting.
    void elisionChanged(bool elided);

protected:
    void paintEvent(QPaintEvent * evenement) override;

private:
    bool DessineTexte(QPainter & peintre) const;

    bool monElision = false;
    QString monContenu;
};
