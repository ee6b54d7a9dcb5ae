// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Banco.h"
#include "practice/sheets/HojaDeEjercicios.h"
#include "practice/store/AlmacenDeProgreso.h"
#include "practice/windows/FormPracticas.h"
#include "shell/core/CarpetaDeDatos.h"
#include "shell/grid/Rejilla.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/shell/support/Entorno.h"

/// The practice window, as a student and a teacher use it.
class TestFormPracticas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        abre();
    }
    void cleanup() { m_ventana.reset(); }

    void unEjercicioDePrincipioAFin()
    {
        QCOMPARE(m_ventana->practica(u"euclides.mcd"_s, 2), QString());
        auto *campo = control<QLineEdit>(m_ventana.get(), u"txtRespuesta"_s);
        QTest::keyClick(campo, Qt::Key_Return);
        QCOMPARE(texto(u"lblVeredicto"_s), u"Escriba una respuesta."_s);
        QTest::keyClicks(campo, u"2³·"_s);
        campo->setText(u"7 · 11"_s);
        QCOMPARE(texto(u"lblLeido"_s), u"leo 77"_s);
        QVERIFY(texto(u"lblVeredicto"_s).isEmpty());
        QTest::keyClick(campo, Qt::Key_Return);
        QVERIFY(texto(u"lblVeredicto"_s).startsWith(u"✗"));
        pulsa(u"cmdPista"_s);
        pulsa(u"cmdPista"_s);
        QVERIFY(!control<QPushButton>(m_ventana.get(), u"cmdPista"_s)->isEnabled());
        QCOMPARE(texto(u"lblPistas"_s).count(u"Pista: "_s), 2);
        auto *pasos = control<PanelDePasos>(m_ventana.get(), u"PanelSolucion"_s);
        QVERIFY(!pasos->isVisible());
        pulsa(u"cmdSolucion"_s);
        QVERIFY(pasos->isVisible() && !pasos->pasos().vacios());
        const QString enunciado = texto(u"lblEnunciado"_s);
        pulsa(u"cmdSiguiente"_s);
        QVERIFY(!pasos->isVisible() && texto(u"lblEnunciado"_s) != enunciado);
        const auto hechos = AlmacenDeProgreso(carpetaDeDatos()).hechos();
        QCOMPARE(hechos.size(), 1);
        QCOMPARE(hechos[0].estado, EstadoDeEjercicio::SolucionVista);
        QCOMPARE(std::tuple(hechos[0].pistas, hechos[0].intentos, hechos[0].nivel),
                 std::tuple(2, 1, 2));
        QVERIFY(!m_ventana->practica(u"nada"_s, 0).isEmpty());
    }

    void elMapaLlevaAPracticar()
    {
        tema(u"mapa"_s);
        auto *mapa = control<Rejilla>(m_ventana.get(), u"FlexMapa"_s);
        QCOMPARE(mapa->model()->rowCount(), banco().size());
        mapa->setCurrentIndex(mapa->model()->index(0, 0));
        pulsa(u"cmdPracticar"_s);
        QVERIFY(control<QWidget>(m_ventana.get(), u"txtRespuesta"_s)->isVisible());
        QVERIFY(texto(u"lblQue"_s).contains(mapa->model()->index(0, 1).data().toString()));
    }

    /// Made, typed, done to its end, and taken along.
    void unaHoja()
    {
        tema(u"hojas"_s);
        control<QSpinBox>(m_ventana.get(), u"spnCuantos"_s)->setValue(2);
        auto *de = control<QComboBox>(m_ventana.get(), u"cmbDe"_s);
        de->setCurrentIndex(de->findData(u"euclides"_s));
        auto *tipos = control<Rejilla>(m_ventana.get(), u"FlexTipos"_s)->model();
        tipos->setData(tipos->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        pulsa(u"cmdCodigo"_s);
        auto *campo = control<QLineEdit>(m_ventana.get(), u"txtCodigo"_s);
        const QString codigo = campo->text();
        campo->setText(codigo.chopped(1));
        QVERIFY(!control<QPushButton>(m_ventana.get(), u"cmdHacer"_s)->isEnabled());
        campo->setText(codigo.toLower());
        const QTemporaryDir carpeta;
        control<QCheckBox>(m_ventana.get(), u"chkSoluciones"_s)->setChecked(true);
        for (const QString &nombre : {u"a.pdf"_s, u"a.html"_s}) {
            Entorno::grabadora().archivos << Interlocutor::Archivo{carpeta.filePath(nombre), 0};
            pulsa(u"cmdGuardarHoja"_s);
            QVERIFY(QFileInfo(carpeta.filePath(nombre)).size() > 1000);
        }
        QFile pagina(carpeta.filePath(u"a.html"_s));
        QVERIFY(pagina.open(QIODevice::ReadOnly));
        QVERIFY(pagina.readAll().contains("<img src=\"data:image/png;base64,"));
        pulsa(u"cmdHacer"_s);
        QVERIFY(texto(u"lblHoja"_s).contains(codigo) && texto(u"lblHoja"_s).contains(u"1 de 2"));
        control<QLineEdit>(m_ventana.get(), u"txtRespuesta"_s)->setText(u"0"_s);
        pulsa(u"cmdComprobar"_s);
        pulsa(u"cmdSiguiente"_s);
        pulsa(u"cmdSiguiente"_s);
        QVERIFY2(texto(u"lblVeredicto"_s).contains(u"0 de 2 sin ayuda"),
                 qPrintable(texto(u"lblVeredicto"_s)));
        QVERIFY(control<QWidget>(m_ventana.get(), u"cmbLeccion"_s)->isVisible());
        tema(u"hojas"_s);
        pulsa(u"cmdHacer"_s);
        const auto encargo = std::get<EncargoDeHoja>(leeCodigoDeHoja(codigo));
        control<QLineEdit>(m_ventana.get(), u"txtRespuesta"_s)
            ->setText(ejerciciosDeHoja(encargo)[0].ejercicio.esperada);
        pulsa(u"cmdComprobar"_s);
        pulsa(u"cmdDejarHoja"_s);
        QVERIFY2(texto(u"lblVeredicto"_s).contains(u"1 de 2 sin ayuda"),
                 qPrintable(texto(u"lblVeredicto"_s)));

        tema(u"historia"_s);
        control<QLineEdit>(m_ventana.get(), u"txtAlumno"_s)->setText(u"Ana"_s);
        Entorno::grabadora().archivos << Interlocutor::Archivo{carpeta.filePath(u"ana.csv"_s), 0};
        pulsa(u"cmdExportar"_s);
        tema(u"clase"_s);
        Entorno::grabadora().respuestas << carpeta.path();
        pulsa(u"cmdCarpeta"_s);
        const auto *clase = control<Rejilla>(m_ventana.get(), u"FlexClase"_s)->model();
        QCOMPARE(clase->headerData(1, Qt::Horizontal).toString(), u"Ana"_s);
        QVERIFY(clase->rowCount() > 0);
        QVERIFY(control<QComboBox>(m_ventana.get(), u"cmbDeHoja"_s)->findText(codigo) > 0);
    }

    void olvidarYNoGuardar()
    {
        QCOMPARE(FormPracticas::invitacion(), QString());
        m_ventana->practica(u"euclides.mcd"_s, 1);
        pulsa(u"cmdSolucion"_s);
        QVERIFY(!FormPracticas::invitacion().isEmpty());
        tema(u"historia"_s);
        const auto *lista = control<Rejilla>(m_ventana.get(), u"FlexHistoria"_s)->model();
        QCOMPARE(lista->rowCount(), 1);
        pulsa(u"cmdBorrar"_s);
        QCOMPARE(lista->rowCount(), 1);
        Entorno::grabadora().respondeSi = true;
        pulsa(u"cmdBorrar"_s);
        QCOMPARE(lista->rowCount(), 0);
        control<QCheckBox>(m_ventana.get(), u"chkGuardar"_s)->click();
        abre();
        m_ventana->practica(u"euclides.mcd"_s, 1);
        pulsa(u"cmdSolucion"_s);
        QVERIFY(AlmacenDeProgreso(carpetaDeDatos()).hechos().isEmpty());
    }

private:
    void abre()
    {
        m_ventana = std::make_unique<FormPracticas>();
        m_ventana->show();
    }
    QString texto(const QString &rotulo) const
    {
        return control<QLabel>(m_ventana.get(), rotulo)->text();
    }
    void pulsa(const QString &boton) const
    {
        control<QPushButton>(m_ventana.get(), boton)->click();
    }
    void tema(const QString &clave) const
    {
        auto *temas = control<QTabBar>(m_ventana.get(), u"tsTema"_s);
        for (int i = 0; i < temas->count(); ++i) {
            if (temas->tabData(i).toString() == clave)
                temas->setCurrentIndex(i);
        }
    }

    std::unique_ptr<FormPracticas> m_ventana;
};

NUMORA_TEST_MAIN(TestFormPracticas)
#include "tst_FormPracticas.moc"
