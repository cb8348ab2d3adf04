#include <dlgbridge/controls/qwximagelist.h>
#include <dlgbridge/controls/qwxnotebook.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include "support/itemwindow.h"
#include "support/logrecorder.h"
#include "support/messages.h"
#include "support/qmlfixture.h"
#include "support/testhost.h"

#include <wx/bitmap.h>
#include <wx/image.h>

using namespace dbr;
using namespace dbr::test;

namespace {

const QByteArray notebookQml = R"(
import QtQuick 2.15
import Arvela.Components 1.0

Column {
    width: 300
    height: 200
    TabBar {
        objectName: "book"
        width: 300
        pages: [general, layout, output]
    }
    Item { id: general; objectName: "general"; property string title: "General"; height: 50 }
    Item { id: layout; objectName: "layout"; property string title: "Layout"; height: 50 }
    Item { id: output; objectName: "output"; property string title: "Output"; height: 50 }
}
)";

wxBitmap filled(int red)
{
    wxImage image(4, 3);
    image.SetRGB(wxRect(0, 0, 4, 3), (unsigned char)red, 0, 0);
    return wxBitmap(image);
}

} // namespace

class tst_Notebook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_qml = std::make_unique<QmlFixture>();
        m_host = std::make_unique<TestHost>(m_qml->loadData(notebookQml));
        m_host->populate();
        QVERIFY(m_host->list().child<qwxNotebook>("book"));
    }
    void cleanup()
    {
        m_host.reset();
        m_qml.reset();
    }
    void selection_isTheCurrentTabAndShowsItsPage();
    void clickedTab_reachesThePageChangedHandler();
    void hidePage_hidesTheTabAndKeepsTheCurrentIndex_data();
    void hidePage_hidesTheTabAndKeepsTheCurrentIndex();
    void setPageImage_putsTheListsImageOnTheTab();
    void setPageImage_outOfRange_warnsWithThePageNumber();
    void withoutItem_answersNeutrally();

private:
    qwxNotebook& book() { return *m_host->list().child<qwxNotebook>("book"); }
    QObject* item(const char* name) const { return m_host->root()->findChild<QObject*>(QLatin1String(name)); }
    QQuickItem* tab(int page) const
    {
        QQuickItem* found = nullptr;
        QMetaObject::invokeMethod(item("book"), "itemAt", Q_RETURN_ARG(QQuickItem*, found), Q_ARG(int, page));
        return found;
    }
    QList<bool> pagesShown() const
    {
        return {item("general")->property("visible").toBool(), item("layout")->property("visible").toBool(),
                item("output")->property("visible").toBool()};
    }

    std::unique_ptr<QmlFixture> m_qml;
    std::unique_ptr<TestHost> m_host;
};

void tst_Notebook::selection_isTheCurrentTabAndShowsItsPage()
{
    QSignalSpy changed(item("book"), SIGNAL(currentChanged(int)));
    QVERIFY(changed.isValid());
    QCOMPARE(book().GetSelection(), 0);
    QCOMPARE(pagesShown(), (QList<bool>{true, false, false}));

    book().SetSelection(2);
    QCOMPARE(book().GetSelection(), 2);
    QCOMPARE(pagesShown(), (QList<bool>{false, false, true}));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toInt(), 2);
}

void tst_Notebook::clickedTab_reachesThePageChangedHandler()
{
    ItemWindow window(m_host->root());
    QList<int> heard;
    m_host->list().connectToNotebookPageChangedEvent("book", [&](qwxCommandEvent& event) {
        QCOMPARE(event.GetEventObject(), static_cast<qwxWindow*>(&book()));
        heard.append(event.GetSelection());
    });

    clickItem(tab(1));
    QCOMPARE(heard, QList<int>{1});
    QCOMPARE(book().GetSelection(), 1);
    QCOMPARE(pagesShown(), (QList<bool>{false, true, false}));
}

void tst_Notebook::hidePage_hidesTheTabAndKeepsTheCurrentIndex_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QList<bool>>("tabsShown");
    QTest::newRow("the current page") << 1 << QList<bool>{true, false, true};
    QTest::newRow("another page") << 2 << QList<bool>{true, true, false};
    QTest::newRow("past the end") << 3 << QList<bool>{true, true, true};
}

void tst_Notebook::hidePage_hidesTheTabAndKeepsTheCurrentIndex()
{
    QFETCH(int, page);
    QFETCH(QList<bool>, tabsShown);
    book().SetSelection(1);
    LogRecorder log;

    book().HidePage(page);
    QList<bool> shown;
    for (int index = 0; index < 3; ++index) {
        shown.append(tab(index)->isVisible());
        QCOMPARE(tab(index)->width() == 0, !shown.last());
    }
    QCOMPARE(shown, tabsShown);
    QCOMPARE(item("book")->property("currentIndex").toInt(), 1);
    QCOMPARE(log.lines(), QStringList());
}

void tst_Notebook::setPageImage_putsTheListsImageOnTheTab()
{
    auto images = std::make_shared<qwxImageList>(4, 3);
    images->Add(filled(10));
    images->Add(filled(200));
    book().SetPageImage(0, 1); // no list yet: nothing to show
    QVERIFY(tab(0)->property("image").value<QImage>().isNull());

    book().SetImageList(images);
    book().SetPageImage(2, 1);
    QCOMPARE(tab(2)->property("image").value<QImage>(), images->getImage(1));
    QVERIFY(tab(1)->property("image").value<QImage>().isNull());
}

void tst_Notebook::setPageImage_outOfRange_warnsWithThePageNumber()
{
    book().SetImageList(std::make_shared<qwxImageList>(4, 3));
    QTest::ignoreMessage(QtWarningMsg, "Unable to set page 7 image");
    book().SetPageImage(7, 0);
}

void tst_Notebook::withoutItem_answersNeutrally()
{
    qwxNotebook lost("nowhere", *m_host);
    lost.SetImageList(std::make_shared<qwxImageList>(4, 3));
    const QString notFound = QStringLiteral(R"(Did not find object "nowhere")");
    // Only the property bridge speaks; the tab operations stop before they would.
    expectMessages(QtWarningMsg,
                   {notFound, "(nowhere) Unable to get qml property currentIndex: object not found", notFound,
                    "(nowhere) Unable to set qml property currentIndex: object not found", notFound, notFound});

    QCOMPARE(lost.GetSelection(), 0);
    lost.SetSelection(1);
    lost.HidePage(0);
    lost.SetPageImage(0, 0);
    QCOMPARE(book().GetSelection(), 0);
    QVERIFY(tab(0)->isVisible());
}

QTEST_MAIN(tst_Notebook)
#include "tst_notebook.moc"
