#include <dlgbridge/controls/qwxbitmapbutton.h>
#include <dlgbridge/controls/qwxbutton.h>
#include <dlgbridge/controls/qwxcheckbox.h>
#include <dlgbridge/controls/qwxgauge.h>
#include <dlgbridge/controls/qwxspinctrl.h>
#include <dlgbridge/controls/qwxstaticbitmap.h>
#include <dlgbridge/controls/qwxstatictext.h>
#include <dlgbridge/controls/qwxtogglebutton.h>
#include <dlgbridge/core/qmlchildlist.h>

#include <QColor>
#include <QImage>
#include <QTest>

#include <wx/image.h>

#include "support/hostedqml.h"
#include "support/logrecorder.h"

using namespace dbr;
using namespace dbr::test;

class tst_SimpleControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = std::make_unique<HostedQml>("controls.qml"); }
    void cleanup() { m_ui.reset(); }

    void values_reachTheItemsPropertiesBothWays();
    void bitmaps_areWrittenAsImages();
    void gauge_keepsItsOwnRangeAndValue();

private:
    template<typename T>
    T& control(const char* name)
    {
        T* found = m_ui->host.list().child<T>(name);
        Q_ASSERT(found);
        return *found;
    }
    QObject* item(const char* name) const { return m_ui->item(name); }

    std::unique_ptr<HostedQml> m_ui;
};

// Each wrapper writes and reads the property its kit component has.
void tst_SimpleControls::values_reachTheItemsPropertiesBothWays()
{
    control<qwxButton>("wxID_OK").SetLabel(wxString::FromUTF8("Übernehmen"));
    QCOMPARE(item("wxID_OK")->property("text").toString(), QString::fromUtf8("Übernehmen"));
    QCOMPARE(control<qwxStaticText>("caption").GetLabel(), wxString("Name"));

    control<qwxCheckBox>("check").SetValue(true);
    QVERIFY(item("check")->property("checked").toBool());
    item("check")->setProperty("checked", false);
    QVERIFY(!control<qwxCheckBox>("check").IsChecked());

    control<qwxSpinCtrl>("count").SetValue(42);
    QCOMPARE(item("count")->property("value").toInt(), 42);
    item("count")->setProperty("value", 17);
    QCOMPARE(control<qwxSpinCtrl>("count").GetValue(), 17);
    control<qwxToggleButton>("mode").SetActiveChoice(2);
    QCOMPARE(item("mode")->property("currentIndex").toInt(), 2);
}

void tst_SimpleControls::bitmaps_areWrittenAsImages()
{
    wxImage red(3, 2);
    red.SetRGB(wxRect(0, 0, 3, 2), 255, 0, 0);
    const wxBitmap bitmap(red);

    LogRecorder log; // a write the item refuses would leave a dynamic property behind, and a warning
    control<qwxBitmapButton>("picture").setBitmap(bitmap);
    control<qwxStaticBitmap>("preview").setBitmap(bitmap);
    for (const char* name : {"picture", "preview"}) {
        const QImage image = item(name)->property("image").value<QImage>();
        QCOMPARE(image.size(), QSize(3, 2));
        QCOMPARE(QColor(image.pixel(2, 1)), QColor(Qt::red));
    }
    QVERIFY2(log.lines().isEmpty(), qPrintable(log.lines().join('\n')));
}

void tst_SimpleControls::gauge_keepsItsOwnRangeAndValue()
{
    auto& progress = control<qwxGauge>("progress");
    progress.SetRange(0);
    QCOMPARE(progress.GetRange(), 1);
    QCOMPARE(item("progress")->property("to").toDouble(), 1.0);
    progress.SetRange(200);
    progress.SetValue(150);
    QCOMPARE(item("progress")->property("to").toDouble(), 200.0);
    QCOMPARE(item("progress")->property("value").toDouble(), 150.0);

    // The item may show something else; the gauge answers with what it was told.
    item("progress")->setProperty("value", 3.0);
    QCOMPARE(progress.GetValue(), 150);
}

QTEST_MAIN(tst_SimpleControls)
#include "tst_simplecontrols.moc"
