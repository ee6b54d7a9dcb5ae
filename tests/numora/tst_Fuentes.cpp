// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Rules of the house that neither compiler nor linker holds, looked for in the sources.
class TestFuentes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const QString &carpeta :
             {u"bignum"_s, u"shell"_s, u"lessons"_s, u"minical"_s, u"numora"_s}) {
            QDirIterator busca(raiz() + carpeta, {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                               QDirIterator::Subdirectories);
            while (busca.hasNext())
                m_fuentes << busca.next().mid(raiz().size());
        }
        QVERIFY(m_fuentes.size() > 100);
    }

    void soloDondeDebe_data()
    {
        QTest::addColumn<QString>("donde");     // the files that are looked at
        QTest::addColumn<QString>("que");       // what they are not to hold
        QTest::addColumn<QString>("excepcion"); // but in these
        const auto regla = [](const char *nombre, const QString &donde, const QString &que,
                              const QString &excepcion = u"^$"_s) {
            QTest::newRow(nombre) << donde << que << excepcion;
        };
        const QString todos = u"."_s;
        regla("no event loop inside an event", todos,
              u"processEvents *\\(|QEventLoop\\b(?!Locker)"_s,
              u"^shell/start/(Main|Galeria)\\.cpp$"_s);
        regla("nothing is executed that can be awaited", todos,
              u"(menu|caja|dialogo)\\w*(\\.|->)exec\\(|Q(MessageBox|FileDialog|InputDialog)::"
              u"(information|warning|critical|question|get\\w+)\\("_s);
        regla("coroutines hide from the meta-object compiler", todos, u"#include <coroutine>"_s,
              u"^shell/core/run/Corrutina\\.h$"_s);
        regla("the failure text is compared in one place", u"^(shell|lessons|minical)/"_s,
              u"(==|!=) *(TextoError|u\"Error\")|(startsWith|contains)\\((TextoError|u\"Error\")"_s,
              u"^shell/core/Lectura\\.cpp$"_s);
        regla("the library is called through its gateway", u"^(shell|lessons|minical|numora)/"_s,
              u"#include \"bignum/(?!gateway/)"_s);
        regla("the system is asked in one folder", u"^shell/"_s,
              u"#include <(unistd|pwd|fcntl|csignal|sys/\\w+|windows)(\\.h)?>"_s,
              u"^shell/core/system/.*\\.cpp$"_s);
        regla("the shell knows no lesson", u"^(bignum|shell)/"_s,
              u"#include \"(lessons|minical|numora)/"_s);
        regla("the number service knows no shell", u"^bignum/"_s, u"#include \"shell/"_s);
        regla("logic knows no window", u"^(shell/core|lessons|minical)/(?!.*windows/)"_s,
              u"#include \"(shell/(start|frame|grid|plot|controls|look)/|[^\"]*windows/)"_s);
    }
    void soloDondeDebe()
    {
        QFETCH(QString, donde);
        QFETCH(QString, que);
        QFETCH(QString, excepcion);
        const QRegularExpression ambito(donde), prohibido(que), permitido(excepcion);
        QStringList infractores;
        for (const QString &fuente : m_fuentes) {
            if (ambito.match(fuente).hasMatch() && !permitido.match(fuente).hasMatch() &&
                prohibido.match(contenido(fuente)).hasMatch())
                infractores << fuente;
        }
        QCOMPARE(infractores.join(u' '), QString());
    }

    void ningunaLeccionConoceAOtra()
    {
        static const QRegularExpression incluida(u"#include \"(lessons/\\w+)/"_s);
        for (const QString &fuente : m_fuentes) {
            const QString propia = fuente.section(u'/', 0, 1);
            auto vecinas = incluida.globalMatch(contenido(fuente));
            while (propia.startsWith(u"lessons/") && vecinas.hasNext())
                QVERIFY2(vecinas.next().captured(1) == propia, qPrintable(fuente));
        }
    }

private:
    static QString raiz() { return QStringLiteral(FUENTES) + u'/'; }
    static QString contenido(const QString &fuente)
    {
        QFile archivo(raiz() + fuente);
        return archivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(archivo.readAll()) : QString();
    }

    QStringList m_fuentes;
};

QTEST_GUILESS_MAIN(TestFuentes)
#include "tst_Fuentes.moc"
