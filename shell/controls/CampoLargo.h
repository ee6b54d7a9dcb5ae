// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

/// A text field for numbers of hundreds of digits: one line of text in meaning, wrapped over as
/// many lines as it needs on screen. Line breaks in a pasted text are dropped, so that a number
/// copied from a wrapped page arrives whole.
class CampoLargo : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textoCambiado USER true)
    Q_PROPERTY(int lineas READ lineas WRITE setLineas)

public:
    /// The longest text that is taken, in characters; more is cut off.
    static constexpr int LongitudMaxima = 100'000;

    explicit CampoLargo(QWidget *padre = nullptr);

    QString text() const { return toPlainText(); }
    void setText(const QString &texto);

    /// The lines that stand in sight without scrolling; 3 at first.
    int lineas() const { return m_lineas; }
    void setLineas(int lineas);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void textoCambiado(const QString &texto);
    /// Enter was pressed without Shift.
    void returnPressed();
    /// The field lost the focus after its text had been changed by the user.
    void editingFinished();

protected:
    void keyPressEvent(QKeyEvent *suceso) override;
    void focusInEvent(QFocusEvent *suceso) override;
    void focusOutEvent(QFocusEvent *suceso) override;
    void insertFromMimeData(const QMimeData *datos) override;

private:
    int alto(int lineas) const;

    int m_lineas = 3;
    QString m_textoAlEntrar;
};

/// Keeps a field as many lines high as its text takes on screen, at least `minimo` and at most
/// `maximo`, so that two digits do not stand in a box made for hundreds. Beyond, it scrolls. Works
/// anew when the text or the width changes. Lives as long as the field.
class LineasSegunTexto : public QObject
{
public:
    LineasSegunTexto(CampoLargo *campo, int minimo, int maximo);

    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void ajusta();

    CampoLargo *m_campo;
    int m_minimo;
    int m_maximo;
};
