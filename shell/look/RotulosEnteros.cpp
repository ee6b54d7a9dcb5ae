// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/RotulosEnteros.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTabWidget>
#include <algorithm>
#include <utility>

namespace {

class RotuloEntero : public QObject
{
public:
    explicit RotuloEntero(QLabel *rotulo) : QObject(rotulo), m_rotulo(rotulo)
    {
        rotulo->installEventFilter(this);
        rotulo->parentWidget()->installEventFilter(this);
    }

    bool eventFilter(QObject *objeto, QEvent *suceso) override
    {
        // The parent is asked for a new layout whenever the text has changed.
        const bool toca = suceso->type() == QEvent::LayoutRequest ||
                          suceso->type() == QEvent::FontChange ||
                          (objeto == m_rotulo && suceso->type() == QEvent::Resize);
        // Not at once: a minimum that changes within a resize has scroll areas resize without end.
        if (toca && !std::exchange(m_pendiente, true))
            QMetaObject::invokeMethod(this, &RotuloEntero::ajusta, Qt::QueuedConnection);
        return QObject::eventFilter(objeto, suceso);
    }

private:
    void ajusta()
    {
        m_pendiente = false;
        if (!conviene())
            return;
        m_ancho = m_rotulo->width();
        m_rotulo->setMinimumHeight(m_texto.isEmpty() ? 0 : alto());
    }

    /// A height that brings a scroll bar, which narrows the label, must not go with the bar: the
    /// two would follow each other without end. So within one size of the window a label gives way
    /// only to more room than a bar takes, and each time only to twice as much as before.
    bool conviene()
    {
        const QSize ventana = m_rotulo->window()->size();
        const int ancho = m_rotulo->width();
        if (m_rotulo->text() != m_texto || m_rotulo->font() != m_letra || ventana != m_ventana) {
            m_texto = m_rotulo->text();
            m_letra = m_rotulo->font();
            m_ventana = ventana;
            m_holgura = m_rotulo->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + Marco;
            return true;
        }
        if (ancho >= m_ancho && ancho <= m_ancho + m_holgura)
            return false;
        if (ancho > m_ancho)
            m_holgura *= 2;
        return true;
    }

    /// Asked of a label like it, because one that has a minimum never says less.
    int alto() const
    {
        QLabel igual;
        igual.setFont(m_rotulo->font());
        igual.setTextFormat(m_rotulo->textFormat());
        igual.setWordWrap(true);
        igual.setAlignment(m_rotulo->alignment());
        igual.setIndent(m_rotulo->indent());
        igual.setMargin(m_rotulo->margin());
        igual.setText(m_rotulo->text());
        return igual.heightForWidth(m_rotulo->width());
    }

    static constexpr int Marco = 8; ///< frame and spacing of what holds the bar, in pixels

    QLabel *m_rotulo;
    QString m_texto;
    QFont m_letra;
    QSize m_ventana;
    int m_ancho = 0;
    int m_holgura = 0;
    bool m_pendiente = false;
};

class CampoEntero : public QObject
{
public:
    explicit CampoEntero(QLineEdit *campo) : QObject(campo), m_campo(campo)
    {
        campo->installEventFilter(this);
        ajusta();
    }

    bool eventFilter(QObject *objeto, QEvent *suceso) override
    {
        // At its show, a field that is filled at run time has its hint.
        if (suceso->type() == QEvent::FontChange || suceso->type() == QEvent::Show)
            ajusta();
        return QObject::eventFilter(objeto, suceso);
    }

private:
    void ajusta()
    {
        // A form that asks for more has its reasons.
        if (m_campo->minimumWidth() != m_ancho)
            return;
        const QFontMetrics letra = m_campo->fontMetrics();
        const int consejo = letra.boundingRect(m_campo->placeholderText()).width();
        const int menor = LetrasComoPoco * letra.averageCharWidth();
        const int mayor = LetrasComoMucho * letra.averageCharWidth();
        m_ancho = std::clamp(consejo, menor, mayor) + Bordes;
        m_campo->setMinimumWidth(m_ancho);
    }

    static constexpr int LetrasComoPoco = 7;
    static constexpr int LetrasComoMucho = 46;
    static constexpr int Bordes = 14; ///< frame and margins, in pixels

    QLineEdit *m_campo;
    int m_ancho = 0;
};

class PestanasEnteras : public QObject
{
public:
    explicit PestanasEnteras(QTabWidget *pestanas) : QObject(pestanas), m_pestanas(pestanas)
    {
        pestanas->installEventFilter(this);
        connect(pestanas, &QTabWidget::currentChanged, this, &PestanasEnteras::pide,
                Qt::QueuedConnection);
    }

    bool eventFilter(QObject *objeto, QEvent *suceso) override
    {
        // Pages behind say nothing when they grow with the type.
        if (suceso->type() == QEvent::LayoutRequest || suceso->type() == QEvent::FontChange)
            QMetaObject::invokeMethod(this, &PestanasEnteras::pide, Qt::QueuedConnection);
        return QObject::eventFilter(objeto, suceso);
    }

private:
    void pide() { m_pestanas->updateGeometry(); }

    QTabWidget *m_pestanas;
};

class ListaEntera : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *lista, QEvent *suceso) override
    {
        // The one event at which a list forgets its smallest size.
        if (suceso->type() == QEvent::FontChange)
            QCoreApplication::postEvent(lista, new QEvent(QEvent::StyleChange));
        return QObject::eventFilter(lista, suceso);
    }
};

} // namespace

void mantieneEntero(QLabel *rotulo)
{
    new RotuloEntero(rotulo);
}

void mantieneEntero(QLineEdit *campo)
{
    new CampoEntero(campo);
}

void mantieneEntera(QComboBox *lista)
{
    lista->installEventFilter(new ListaEntera(lista));
}

void mantieneEnteras(QTabWidget *pestanas)
{
    new PestanasEnteras(pestanas);
}
