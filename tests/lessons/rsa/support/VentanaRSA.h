// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/windows/FormClaveRSA.h"
#include "lessons/rsa/windows/FormRSA.h"
#include "shell/controls/CampoLargo.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/grid/Rejilla.h"
#include "tests/lessons/rsa/support/Estudiante.h"

/// A window of the lesson with a student before it; its controls by name.
class VentanaRSA
{
public:
    void nueva()
    {
        cierra();
        m_yo = std::make_unique<Estudiante>();
        QFile::remove(Sesión().carpetaDeAjustes() + u"/RSA.borradores"_s);
    }
    void cierra() { m_ventana.reset(); }

    void abre()
    {
        m_ventana.reset();
        m_ventana = std::make_unique<FormRSA>();
        m_ventana->resize(1100, 650);
        m_ventana->show();
        temasDe()->setCurrentIndex(1);
    }

    /// Presses the button of a run, and waits until the run has ended.
    void pulsa(const QString &nombre)
    {
        boton(nombre)->click();
        acaba();
    }
    void acaba() const
    {
        const auto corridas = m_ventana->findChildren<BotonDeCorrida *>();
        QVERIFY(QTest::qWaitFor(
            [&] {
                return std::none_of(corridas.begin(), corridas.end(),
                                    [](const auto *corrida) { return corrida->enMarcha(); });
            },
            60'000));
    }

    void preparaBuzon(const QString &q1 = u"257"_s, const QString &q2 = u"263"_s,
                      const QString &s = u"5"_s)
    {
        abre();
        ponClave(q1, q2, s);
        eligeBuzon(m_yo->buzon());
        temasDe()->setCurrentIndex(3);
        QCoreApplication::processEvents();
        acaba();
    }

    void eligeBuzon(const QString &carpeta)
    {
        Entorno::grabadora().respuestas = {carpeta};
        boton(u"cmdBuzon"_s)->click();
    }

    void abreConClave()
    {
        abre();
        ponClave();
    }
    void ponClave(const QString &q1 = u"257"_s, const QString &q2 = u"263"_s,
                  const QString &s = u"5"_s)
    {
        // Each field is taken over as it is left; the last verdict is the one on the whole key.
        const auto avisos = Entorno::grabadora().mensajes;
        const QList<std::pair<QString, QString>> numeros{
            {u"txtQ_1"_s, q1}, {u"txtQ_2"_s, q2}, {u"txtS"_s, s}};
        for (const auto &[nombre, numero] : numeros) {
            Entorno::grabadora().mensajes = avisos;
            escribe(nombre, numero);
        }
    }

    void escribe(const QString &nombre, const QString &texto)
    {
        campo(nombre)->setText(texto);
        QTest::keyClick(campo(nombre), Qt::Key_Return);
    }

    void escribeMensaje(const QString &asunto, const QString &texto)
    {
        linea(u"txtAsunto"_s)->setText(asunto);
        mensaje()->setPlainText(texto);
    }

    /// Subject and text of the sheet.
    QString escrito() const
    {
        return linea(u"txtAsunto"_s)->text() + u'|' + mensaje()->toPlainText();
    }

    void eligeUsuario(const QString &usuario)
    {
        destinatario()->setCurrentText(usuario);
        QTest::keyClick(destinatario()->lineEdit(), Qt::Key_Return);
    }
    QComboBox *destinatario() const
    {
        return control<QComboBox>(m_ventana.get(), u"cmbDestinatario"_s);
    }

    void eligeFila(int fila)
    {
        auto *rejilla = rejillaDeMensajes();
        const QRect celda = rejilla->visualRect(rejilla->model()->index(fila, 0));
        QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {}, celda.center());
    }

    QTabBar *temasDe() const { return control<QTabBar>(m_ventana.get(), u"tsTema"_s); }
    QStringList temas() const
    {
        QStringList rotulos;
        for (int i = 0; i < temasDe()->count(); ++i)
            rotulos << temasDe()->tabText(i);
        return rotulos;
    }
    Rejilla *rejillaDeMensajes() const
    {
        return control<Rejilla>(m_ventana.get(), u"FlexMensajes"_s);
    }
    /// The cells of the list of messages; empty when it is.
    QString lista() const
    {
        const QAbstractItemModel &modelo = *rejillaDeMensajes()->model();
        QString lineas;
        for (int f = -1; f < modelo.rowCount() && modelo.rowCount() > 0; ++f)
            for (int c = 0; c < 3; ++c)
                lineas += (f < 0 ? modelo.headerData(c, Qt::Horizontal) : modelo.index(f, c).data())
                              .toString() +
                          (c < 2 ? u'\t' : u'\n');
        return lineas;
    }
    FormClaveRSA *ventanaClave() const { return m_ventana->findChild<FormClaveRSA *>(); }
    QString campoAjeno(const QString &nombre) const
    {
        return control<CampoLargo>(ventanaClave(), nombre)->text();
    }
    CampoLargo *campo(const QString &nombre) const
    {
        return control<CampoLargo>(m_ventana.get(), nombre);
    }
    QLineEdit *linea(const QString &nombre) const
    {
        return control<QLineEdit>(m_ventana.get(), nombre);
    }
    QPlainTextEdit *area(const QString &nombre) const
    {
        return control<QPlainTextEdit>(m_ventana.get(), nombre);
    }
    QPlainTextEdit *mensaje() const { return area(u"txtDestTextoOriginal"_s); }
    QAbstractButton *boton(const QString &nombre) const
    {
        return control<QAbstractButton>(m_ventana.get(), nombre);
    }
    QString rotulo(const QString &nombre) const
    {
        return control<QLabel>(m_ventana.get(), nombre)->text();
    }

    std::unique_ptr<Estudiante> m_yo;
    std::unique_ptr<FormRSA> m_ventana;
};
