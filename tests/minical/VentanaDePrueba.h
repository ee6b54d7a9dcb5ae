// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/windows/FormCalc.h"
#include "tests/shell/support/Entorno.h"

/// A window of the sheet in sight, and what a user does to it by keys, mouse and buttons.
class VentanaDePrueba
{
public:
    VentanaDePrueba()
    {
        m_ventana->setAttribute(Qt::WA_DeleteOnClose, false);
        m_ventana->resize(900, 600);
        m_ventana->show();
        m_ventana->activateWindow();
        // Shortcuts need an active window.
        if (!QTest::qWaitForWindowActive(m_ventana.get()))
            qFatal("the window does not become active");
        m_rejilla = control<QTableView>(m_ventana.get(), QStringLiteral("FlexCalc"));
        m_rejilla->setFocus();
    }

    FormCalc *operator->() const { return m_ventana.get(); }
    FormCalc *ventana() const { return m_ventana.get(); }
    QTableView *rejilla() const { return m_rejilla; }

    QModelIndex indice(QStringView nombre) const
    {
        const Celda celda = celdaDeNombre(nombre).value();
        return m_rejilla->model()->index(celda.fila - 1, celda.columna - 1);
    }
    QString texto(QStringView nombre) const { return indice(nombre).data().toString(); }
    QString actual() const
    {
        return NombreCelda(
            {m_rejilla->currentIndex().row() + 1, m_rejilla->currentIndex().column() + 1});
    }
    void ve(QStringView nombre) { m_rejilla->setCurrentIndex(indice(nombre)); }

    /// The field of the edit in progress, or null.
    QLineEdit *editor() const
    {
        const auto campos = m_rejilla->findChildren<QLineEdit *>(QStringLiteral("txtCelda"));
        // One whose edit has ended lives on until the event loop runs.
        const auto visible = std::find_if(campos.begin(), campos.end(),
                                          [](const QLineEdit *c) { return c->isVisible(); });
        return visible == campos.end() ? nullptr : *visible;
    }
    /// What stands in it; "(none)" when nothing is edited.
    QString editado() const { return editor() ? editor()->text() : QStringLiteral("(none)"); }
    /// Keys go where the focus is: to the field of an edit, else to the grid.
    void teclea(const QString &texto)
    {
        for (const QChar c : texto)
            QTest::keyClick(conFoco(), c.toLatin1());
    }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifiers con = {})
    {
        QTest::keyClick(conFoco(), tecla, con);
        // The end of an edit comes from the event queue.
        QCoreApplication::processEvents();
    }
    /// Keys by their names, with a blank between them.
    void pulsa(const QString &teclas)
    {
        for (const QString &una : teclas.split(u' ', Qt::SkipEmptyParts)) {
            const QKeyCombination tecla = QKeySequence(una)[0];
            pulsa(tecla.key(), tecla.keyboardModifiers());
        }
    }
    void entra(QStringView nombre, const QString &expresion)
    {
        ve(nombre);
        teclea(expresion);
        pulsa(Qt::Key_Return);
    }
    QAbstractButton *elBoton(const QString &clave) const
    {
        return control<QAbstractButton>(ventana(), clave);
    }
    void boton(const QString &clave) { elBoton(clave)->click(); }

    QPoint lugar(QStringView nombre) const
    {
        return m_rejilla->visualRect(indice(nombre)).center();
    }
    void pincha(QStringView nombre, Qt::MouseButton con = Qt::LeftButton)
    {
        QTest::mouseClick(m_rejilla->viewport(), con, {}, lugar(nombre));
    }

    QWidget *zoom() const { return m_ventana->findChild<QWidget *>(QStringLiteral("FormZoom")); }
    QString textoDelZoom() const
    {
        return control<QPlainTextEdit>(zoom(), QStringLiteral("txtZoom"))->toPlainText();
    }

    QLineEdit *campo(const QString &nombre) const { return control<QLineEdit>(ventana(), nombre); }
    QString rotulo(const QString &nombre) const
    {
        return control<QLabel>(ventana(), nombre)->text();
    }
    /// The cells that are chosen, in the order in which they were.
    QString elegidas() const
    {
        QStringList nombres;
        for (const QModelIndex &i : m_rejilla->selectionModel()->selectedIndexes())
            nombres << NombreCelda({i.row() + 1, i.column() + 1});
        return nombres.join(u' ');
    }
    /// Its title and its text.
    QString vistoEnElZoom() const
    {
        return zoom()->windowTitle() + QStringLiteral(": ") + textoDelZoom();
    }

private:
    QWidget *conFoco() const
    {
        QWidget *campo = editor();
        return campo ? campo : m_rejilla;
    }

    std::unique_ptr<FormCalc> m_ventana = std::make_unique<FormCalc>();
    QTableView *m_rejilla;
};
