#include "tests/shell/support/Entorno.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

/// The real boxes, answered by pressing their buttons.
class TestInterlocutor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void pideCarpeta_data()
    {
        QTest::addColumn<bool>("acepta");
        QTest::newRow("chosen") << true;
        QTest::newRow("cancelled") << false;
    }
    void pideCarpeta()
    {
        QFETCH(bool, acepta);
        const QTemporaryDir inicial;
        QString pregunta;
        QTimer::singleShot(0, this, [&] {
            auto *dialogo = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialogo);
            for (const QLabel *rotulo : dialogo->findChildren<QLabel *>()) {
                if (rotulo->text().contains(u'\n') && rotulo->isVisible())
                    pregunta = rotulo->text();
            }
            if (acepta)
                dialogo->selectFile(inicial.path());
            dialogo->findChild<QDialogButtonBox *>()
                ->button(acepta ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)
                ->click();
        });
        QCOMPARE(m_real.pideCarpeta(nullptr, u"Uno.\n(Dos)"_s, inicial.path()),
                 acepta ? inicial.path() : QString());
        QCOMPARE(pregunta, u"Uno.\n(Dos)"_s);
    }

    void confirma_data()
    {
        QTest::addColumn<int>("tecla");
        QTest::addColumn<bool>("respuesta");
        QTest::newRow("Enter takes the careful answer") << int(Qt::Key_Return) << false;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
        QTest::newRow("yes") << 0 << true;
    }
    void confirma()
    {
        QFETCH(int, tecla);
        QTimer::singleShot(0, this, [&] {
            auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(caja);
            if (tecla == 0)
                caja->button(QMessageBox::Yes)->click();
            else
                QTest::keyClick(caja, Qt::Key(tecla));
        });
        QTEST(m_real.confirma(nullptr, u"¿Seguro?"_s, u"Título"_s), "respuesta");
    }

private:
    Interlocutor m_real;
};

NUMORA_TEST_MAIN(TestInterlocutor)
#include "tst_Interlocutor.moc"
