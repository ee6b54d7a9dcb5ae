// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"
#include "practice/progress/Dominio.h"
#include "practice/progress/Eleccion.h"
#include "practice/progress/LaminaDelCurso.h"
#include "tests/Tabla.h"

/// What counts as commanded, what comes next, and the account of one exercise.
class TestDominio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }

    /// A history is written as days with their results: "+" right at once, "r" right at the second
    /// try, "p" with a hint, "s" the solution seen, "x" wrong, "." passed over.
    void elDominio_data()
    {
        filasDeTexto<QString, int, int, int, QString>(uR"(
            nothing done | "" | 0 | 1 | 0 | —
            all on one day | 100+++++ | 0 | 1 | 5 | —
            four of five on two days | 99++x 100++ | 1 | 2 | 0 | mañana
            help does not count | 99+p+r 100+s+ | 0 | 1 | 3 | —
            passed over is as if it were not | 99++ 100+.+ | 1 | 2 | 0 | mañana
            more wrong answers take nothing away | 99++ 100++xxxxx | 1 | 2 | 0 | mañana
            review due | 90++ 91++ | 1 | 2 | 0 | hoy
            reviewed once | 90++ 91++ 92+ | 1 | 2 | 0 | hoy
            reviewed today | 90++ 91++ 92+ 100+ | 1 | 2 | 0 | en 7 días
            a failed review begins again | 90++ 91++ 92+ 100x | 1 | 2 | 0 | mañana
            all four reviews | 1++ 2++ 3+ 6+ 13+ 34+ | 1 | 2 | 0 | —
            before its day a review changes nothing | 90++ 100++++ | 1 | 2 | 0 | mañana
            the clock has been set back | 500++ 501++ | 1 | 2 | 0 | hoy
            set back and reviewed since | 500++ 501++ 99+ | 1 | 2 | 0 | en 2 días)"_s);
    }
    void elDominio()
    {
        const auto [historia, dominado, propuesto, ultimas, repaso] =
            estaFila<QString, int, int, int, QString>();
        const Dominio dominio = dominioDe(historiaDe(historia, 1), 100);
        QCOMPARE(dominio.dominado, dominado);
        QCOMPARE(dominio.propuesto, propuesto);
        QCOMPARE(dominio.deLasUltimas, ultimas);
        QCOMPARE(cuandoToca(dominio, 100), repaso);
    }

    void elNivelSuperiorValePorLosDeAbajo()
    {
        QCOMPARE(dominioDe(historiaDe(u"99++ 100++"_s, 3), 100).dominado, 3);
        QCOMPARE(dominioDe(historiaDe(u"99++ 100++"_s, 3), 100).propuesto, 3);
    }

    void loQueToca_data()
    {
        filasDeTexto<QString, QString, int>(uR"(
            the first of the course | "" | a | 1
            on with what was begun | b 100+ | b | 1
            on with what was begun last | b 99+, c 100x | c | 1
            the review first | c 100+, b 90++ 91++ | b | 1
            something new after a level | a 99++ 100++ | b | 1
            the next level when all was tried | a 99++ 100++, b 99++ 100++, c 98++ 99++ 100+ | a | 2)"_s);
    }
    void loQueToca()
    {
        const auto [historias, clave, nivel] = estaFila<QString, QString, int>();
        QHash<QString, Dominio> dominios;
        for (const QString &una : historias.split(u", "_s, Qt::SkipEmptyParts))
            dominios.insert(una.section(u' ', 0, 0),
                            dominioDe(historiaDe(una.section(u' ', 1), 1), 100));
        const Propuesta propuesta = ::loQueToca({u"a"_s, u"b"_s, u"c"_s}, dominios, 100);
        QCOMPARE(propuesta.clave, clave);
        QCOMPARE(propuesta.nivel, nivel);
    }

    /// What has been reached is never lost by trying again; what cannot be read costs nothing.
    void unEjercicio_data()
    {
        filasDeTexto<QString, int, int, int, bool>(uR"(
            right | 12 | 3 | 1 | 0 | yes
            wrong | 7 | 1 | 1 | 0 | no
            wrong, then right | 7 12 | 3 | 2 | 0 | no
            right, then wrong | 12 7 | 3 | 1 | 0 | yes
            unreadable | doce | 0 | 0 | 0 | no
            hint, then right | ? 12 | 3 | 1 | 1 | no
            right, then a hint | 12 ? | 3 | 1 | 0 | yes
            three hints are two | ? ? ? 12 | 3 | 1 | 2 | no
            solution, then right | ! 12 | 2 | 0 | 0 | no
            right, then the solution | 12 ! | 3 | 1 | 0 | yes)"_s);
    }
    void unEjercicio()
    {
        const auto [ordenes, estado, intentos, pistas, solo] =
            estaFila<QString, int, int, int, bool>();
        EjercicioEnCurso curso(banco().constFirst(), 1,
                               {.enunciado = u"¿Cuánto es 3·4?"_s,
                                .forma = {FormaDeRespuesta::Entero, {}, {}},
                                .ejemplo = {},
                                .esperada = u"12"_s,
                                .juzga =
                                    [](const RespuestaLeida &r) {
                                        return r.numeros.constFirst() == u"12"
                                                   ? Fallo::bien({})
                                                   : Fallo::mal({}, u"suma"_s);
                                    },
                                .pistas = {u"una"_s, u"otra"_s},
                                .solucion = [] { return Pasos(); }});
        for (const QString &orden : ordenes.split(u' ')) {
            if (orden == u"?")
                curso.pidePista();
            else if (orden == u"!")
                curso.pideSolucion();
            else
                curso.responde(orden);
        }
        const Hecho &hecho = curso.hecho();
        QCOMPARE(static_cast<int>(hecho.estado), estado);
        QCOMPARE(hecho.intentos, intentos);
        QCOMPARE(hecho.pistas, pistas);
        QCOMPARE(hecho.sinAyuda(), solo);
    }

    /// Each lesson after those that it builds on, and each kind in a lesson of the course.
    void elCurso()
    {
        QStringList vistas;
        for (const LeccionDelCurso &leccion : curso()) {
            for (const QString &antes : leccion.antes)
                QVERIFY2(vistas.contains(antes), qPrintable(leccion.clave));
            vistas << leccion.clave;
        }
        QCOMPARE(clavesDelBanco().size(), banco().size());
        QVERIFY(Eleccion::deClave(u"euclides.mcd"_s, 9)->nivel == Niveles);
        QVERIFY(Eleccion::deClave(u"euclides"_s, 0) && Eleccion::deClave({}, 0));
        QVERIFY(!Eleccion::deClave(u"nada.de-eso"_s, 1));
    }

private:
    static QList<Hecho> historiaDe(const QString &texto, int nivel)
    {
        QList<Hecho> hechos;
        for (const QString &trozo : texto.split(u' ', Qt::SkipEmptyParts)) {
            static const QRegularExpression cifras(u"^\\d+"_s);
            const QString dia = cifras.match(trozo).captured();
            for (const QChar como : trozo.mid(dia.size()))
                hechos << hecho(como, nivel, dia.toInt());
        }
        return hechos;
    }

    static Hecho hecho(QChar como, int nivel, int dia)
    {
        Hecho hecho{.clave = u"a.b"_s, .nivel = nivel, .intentos = como == u'r' ? 2 : 1};
        hecho.pistas = como == u'p' ? 1 : 0;
        hecho.dia = dia;
        hecho.estado = como == u'x'   ? EstadoDeEjercicio::Fallado
                       : como == u's' ? EstadoDeEjercicio::SolucionVista
                       : como == u'.' ? EstadoDeEjercicio::NoContestado
                                      : EstadoDeEjercicio::Acertado;
        return hecho;
    }
};

QTEST_GUILESS_MAIN(TestDominio)
#include "tst_Dominio.moc"
