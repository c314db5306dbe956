// The client reports on the seeded practice: new clients by month and in detail, monthly and full
// expenditure, debt and credit with its ageing, bad debtors and all clients.
#include "admin.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QApplication>
#include <QScrollBar>
#include <QSqlQuery>
#include <QStatusBar>
#include <QtTest>

using namespace ReportPractice;

namespace {

enum Report { History = 9, Detailed = 10, Monthly = 12, Full = 13, Debt = 14, BadDebtors = 15, AllClients = 20 };

const QDate today = QDate::currentDate();
QString ago(int days) { return today.addDays(-days).toString("yyyy-MM-dd"); }
QString money(double value) { return Utility::numStr(value, 2); }

// Each client: account, title, initials, surname as shown (stored encoded), created, then
// optionally the home, work and cell telephone, the e-mail address and the bad debt flag.
bool addClients(QList<QVariantList> clients)
{
    for (QVariantList &client : clients)
        client[3] = Utility::rot13(client.at(3).toString());
    return insert("Owner", QString("AccountNumber,Title,Initials,Surname,Created,TelHome,TelWork,Cell,Email,BadDebt")
                               .split(','), clients);
}

// Each entry: account, date, kind, amount (its value; no rounding).
bool addEntries(const QList<QVariantList> &entries)
{
    QList<QVariantList> rows;
    for (const QVariantList &entry : entries)
        rows << (QVariantList{9000 + rows.size()} + entry + QVariantList{0.0});
    return insert("Journal", {"MyNumber", "AccountNumber", "MyDate", "Description", "Amount", "Rounding"}, rows);
}

// Clients of early 2021 and their spending, far from the seeded ones (all within 800 days of today).
// The later account of each tie is written first, so that only a deliberate order lists it second.
bool earlyPractice()
{
    return addClients({{26, "Ms", "A.", "Adams", "2021-03-01"},
                       {20, "Mr", "D.", "Dvořák", "2021-03-31", "021 555 2001", "", "082 555 2001", "dvorak@example.org"},
                       {21, "Ms", "Ł.", "Łukasiewicz", "2021-03-01", "", "011 555 2102"},
                       {22, "Mrs", "Q.", "O'Hara \\ Back", "2021-01-01"}, {23, "Dr", "S.", "Σωκράτης", "2020-10-31"},
                       {24, "Mr", "N.", "Nguyễn", "2020-12-31"}, {25, "Mr", "E.", "Early", "2020-09-30"}})
        && addEntries({{21, "2021-03-31", "I", 75.0}, {20, "2021-03-05", "I", 100.0}, {20, "2021-03-20", "RF", -25.0},
                       {22, "2021-03-10", "I", 0.01}, {23, "2021-03-02", "I", 10.0}, {23, "2021-03-03", "RF", -60.0},
                       {23, "2021-03-04", "R", -100.0}, {24, "2021-02-28", "I", 5.005}, {24, "2021-04-01", "I", 10.0},
                       {26, "2021-03-15", "I", 40.0}, {26, "2021-03-15", "Q", 500.0}, {26, "2021-03-16", "R", -40.0},
                       {26, "2021-03-17", "VR", 10.0}, {25, "2021-03-20 16:00", "I", 60.0}});
}

// Bad debtors beside the seeded two (O'Brien owing 300, Zulu 80): one in credit, one without any
// entry, one with only a quotation, two more owing 80 (the later account written first).
bool badPractice()
{
    return addClients({{41, "Mr", "F.", "Forty-One", ago(900), "", "", "", "", "Y"},
                       {9, "Mrs", "N.", "Nine", ago(900), "", "", "", "", "Y"},
                       {37, "Mr", "X.", "Ψ-Credit", ago(900), "", "", "083 555 3737", "", "Y"},
                       {38, "Ms", "E.", "Empty", ago(900), "", "", "", "", "Y"},
                       {39, "Ms", "Q.", "Quoted", ago(900), "", "", "", "", "Y"}})
        && addEntries({{41, ago(10), "I", 80.0}, {9, ago(10), "I", 80.0}, {37, ago(5), "I", 10.0},
                       {37, ago(3), "R", -25.0}, {39, ago(3), "Q", 40.0}});
}

// One client's balance walked entry by entry in date order, each payment settling the oldest charges
// still open (and each charge the oldest credit), then what is left aged as of today: the ageing the
// report must give, found the slow way with a statement of the client's own.
QStringList agedOneByOne(const QString &account, double *balance)
{
    QList<QPair<QDate, double>> open; // the entries still open, oldest first; all of one sign
    QSqlQuery query("SELECT MyDate,Amount-Rounding FROM Journal WHERE AccountNumber=" + account
                    + " AND Description!='Q' AND Description!='VR' ORDER BY MyDate");
    *balance = 0.0;
    while (query.next()) {
        double value = query.value(1).toDouble();
        *balance += value;
        while (value != 0.0 && !open.isEmpty() && (open.first().second > 0) != (value > 0)) {
            const double settled = value > 0 ? std::min(value, -open.first().second) : std::max(value, -open.first().second);
            open.first().second += settled;
            value -= settled;
            if (std::abs(open.first().second) < 1e-9)
                open.removeFirst();
        }
        if (std::abs(value) >= 1e-9)
            open << qMakePair(QDate::fromString(query.value(0).toString().left(10), "yyyy-MM-dd"), value);
    }
    QList<double> periods(5, 0.0);
    for (const auto &entry : open)
        periods[std::clamp(int(entry.first.daysTo(today) / 30), 0, 4)] += entry.second;
    QStringList cells{money(*balance)};
    for (double value : periods)
        cells << money(value);
    return cells;
}

// Every heading shows whole, and so does every number, date and telephone or account number; a
// report of up to eight columns fits the window's list, wider ones scroll rather than squeeze.
void checkReadable(Admin *admin)
{
    const QTreeWidget *list = admin->ui.report_list;
    const QStringList whole{"Acc No.", "Acc. #", "Identity No.", "Home Tel.", "Work Tel.", "Cellular.", "Initial Visit",
                            "Last Visit"};
    const QStringList headings = shown(admin).first().split('|');
    int total = 0;
    for (int c = 0; c < headings.size(); ++c) {
        QStringList texts{list->headerItem()->text(c)};
        if (whole.contains(texts.first()) || headings.at(c).startsWith('>'))
            for (const QStringList &row : rows(admin))
                texts << row.at(c);
        for (const QString &text : texts)
            QVERIFY2(list->fontMetrics().horizontalAdvance(text) + 8 <= list->columnWidth(c), qPrintable(text));
        total += list->columnWidth(c);
    }
    QVERIFY2(headings.size() > 8 || total <= list->viewport()->width() - list->verticalScrollBar()->sizeHint().width(),
             qPrintable(QString::number(total)));
}

} // namespace

class ClientReportsTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    Admin *admin = nullptr;

private slots:
    void init()
    {
        EngineSuite::init();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY(seed(today));
        admin = TestSupport::makeAdmin();
    }

    void reports_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<QString>("setup");     // "early" or "bad": the clients added; "fr": in French
        QTest::addColumn<QStringList>("lines"); // the headings, then the rows
        // Six months back from the start's month, whatever its day; months without new clients show 0.
        QTest::newRow("new clients in March") << int(History) << QDate(2021, 3, 15) << QDate(2020, 1, 1) << "early"
            << QStringList{"Description|2020-10|2020-11|2020-12|2021-01|2021-02|2021-03", "New Clients|1|0|1|1|0|3"};
        QTest::newRow("new clients on January 31st") << int(History) << QDate(2021, 1, 31) << QDate(2021, 1, 31) << "early"
            << QStringList{"Description|2020-08|2020-09|2020-10|2020-11|2020-12|2021-01", "New Clients|0|1|1|0|1|1"};
        QTest::newRow("new clients on June 1st") << int(History) << QDate(2021, 6, 1) << QDate(2021, 6, 1) << "early"
            << QStringList{"Description|2021-01|2021-02|2021-03|2021-04|2021-05|2021-06", "New Clients|1|0|3|0|0|0"};

        // Clients created from the start to the end day, oldest first and ties by account, and how many.
        const QString detailed = "Client|Acc No.|Initial Visit|Home Tel.|Work Tel.|Cellular.|Email Address";
        QTest::newRow("detailed: a quarter") << int(Detailed) << QDate(2021, 1, 1) << QDate(2021, 3, 31) << "early"
            << QStringList{detailed, "O'Hara \\ Back  Mrs Q.|22|2021-01-01||||", "Łukasiewicz  Ms Ł.|21|2021-03-01||011 555 2102||",
                           "Adams  Ms A.|26|2021-03-01||||", "Dvořák  Mr D.|20|2021-03-31|021 555 2001||082 555 2001|dvorak@example.org",
                           "Number of Clients|4|||||"};
        QTest::newRow("detailed: end before start") << int(Detailed) << QDate(2021, 3, 31) << QDate(2021, 1, 1) << "early"
                                                    << QStringList{detailed, "Number of Clients|0|||||"};

        // Invoices and refunds of the month only, largest first and ties by account; credits and
        // totals of 0.01 or less left out. The month is named in the user's language.
        const QStringList march{"Dvořák  Mr D.|20|75.00", "Łukasiewicz  Ms Ł.|21|75.00", "Early  Mr E.|25|60.00",
                                "Adams  Ms A.|26|40.00"};
        QTest::newRow("monthly: March") << int(Monthly) << QDate(2021, 3, 31) << QDate(2021, 2, 1) << "early"
                                        << QStringList{"Client|Acc No.|>Expenditure for Mar 2021"} + march;
        QTest::newRow("monthly: March, in French") << int(Monthly) << QDate(2021, 3, 1) << QDate(2021, 3, 1) << "early fr"
                                                   << QStringList{"Client|Acc No.|>Expenditure for mars 2021"} + march;

        // Everything invoiced or refunded up to and including the start day (a time of that day
        // too), largest first, ties by account, then the sum of the listed totals.
        const QString full = "Client|Acc No.|>Total Expenditure to date.", early = "Early  Mr E.|25|60.00",
                      adams = "Adams  Ms A.|26|40.00";
        QTest::newRow("full: the day of a refund and a late invoice") << int(Full) << QDate(2021, 3, 20) << QDate(2021, 3, 20)
            << "early" << QStringList{full, "Dvořák  Mr D.|20|75.00", early, adams, "Nguyễn  Mr N.|24|5.01", "Grand Total||180.01"};
        QTest::newRow("full: the day before") << int(Full) << QDate(2021, 3, 19) << QDate(2021, 3, 19) << "early"
            << QStringList{full, "Dvořák  Mr D.|20|100.00", adams, "Nguyễn  Mr N.|24|5.01", "Grand Total||145.01"};
        QTest::newRow("full: today") << int(Full) << today << today << "early"
            << QStringList{full, "O'Brien  Mr P.|5|300.00", "Östreich  Ms Ö.|4|200.00", "Smith  Mr J.|1|100.00",
                           "Zulu  Prof Z.|6|80.00", "Dvořák  Mr D.|20|75.00", "Łukasiewicz  Ms Ł.|21|75.00", early,
                           "van der Merwe  Mrs A.B.|2|55.56", adams, "Van Der Merwe  Dr K.|3|30.00", "Smith  Mr A.|8|30.00",
                           "Taba  Mr T.|7|20.00", "Nguyễn  Mr N.|24|15.01", "Grand Total||1080.56"};

        // Debtors and creditors by name (a settled account left out), then the debtors' and the
        // creditors' column sums. The seeded balances of the last day of last month are current
        // unless today is the 30th or 31st.
        const bool current = today.day() < 30;
        const QString lastMonth = current ? "|30.00|30.00|0.00|0.00|0.00|0.00" : "|30.00|0.00|30.00|0.00|0.00|0.00";
        QTest::newRow("debt and credit") << int(Debt) << today << today << ""
            << QStringList{"Client|Acc No.|>Balance|>Curr.|>30|>60|>90|>120+",
                           "O'Brien  Mr P.|5|300.00|0.00|0.00|0.00|0.00|300.00", "Smith  Mr A.|8" + lastMonth,
                           "Smith  Mr J.|1|100.00|100.00|0.00|0.00|0.00|0.00", "Taba  Mr T.|7|-50.00|-50.00|0.00|0.00|0.00|0.00",
                           "Van Der Merwe  Dr K.|3" + lastMonth, "Zulu  Prof Z.|6|80.00|0.00|0.00|80.00|0.00|0.00",
                           "Östreich  Ms Ö.|4|50.00|0.00|50.00|0.00|0.00|0.00",
                           QString("zzz- Debt Totals -zzz||590.00|") + (current ? "160.00|50.00" : "100.00|110.00")
                               + "|80.00|0.00|300.00",
                           "zzz- Credit Totals -zzz||-50.00|-50.00|0.00|0.00|0.00|0.00"};

        // Marked clients with a balance, largest first and ties by account, credits too, then the total.
        QTest::newRow("bad debtors") << int(BadDebtors) << today << today << "bad"
            << QStringList{"Acc No.|Client|>Balance|Identity No.|Home Tel.|Work Tel.|Cellular.|Physical Address|"
                           "Postal Address|Notes",
                           "5|O'Brien  Mr P.|300.00|6505055000082|011 555 0505|||5 \"Main\" Rd||Owes since last year; 50% promised",
                           "6|Zulu  Prof Z.|80.00||||084 555 0606|||", "9|Nine  Mrs N.|80.00|||||||",
                           "41|Forty-One  Mr F.|80.00|||||||", "37|Ψ-Credit  Mr X.|-15.00||||083 555 3737|||",
                           "|Grand Total|525.00|||||||"};

        // Every client by name with the last day anything was entered on the account, "Unknown" when nothing was.
        const QDate monthStart(today.year(), today.month(), 1);
        const QString lastMonthEnd = monthStart.addDays(-1).toString("yyyy-MM-dd");
        QTest::newRow("all clients") << int(AllClients) << today << today << "bad"
            << QStringList{"Client|Acc. #|Identity No.|Home Tel.|Work Tel.|Cellular.|Physical Address|Postal Address|"
                           "Email Address|Last Visit",
                           "Empty  Ms E.|38||||||||Unknown", "Forty-One  Mr F.|41||||||||" + ago(10),
                           "Nine  Mrs N.|9||||||||" + ago(10),
                           "O'Brien  Mr P.|5|6505055000082|011 555 0505|||5 \"Main\" Rd|||" + ago(120),
                           "Quoted  Ms Q.|39||||||||" + ago(3), "Smith  Mr A.|8||||||||" + lastMonthEnd,
                           "Smith  Mr J.|1|7001015000081|021 555 0101|021 555 0102|082 555 0103|1 Long St Cape Town|PO Box 1|"
                           "smith@example.org|" + ago(0),
                           "Taba  Mr T.|7||||||||" + ago(9),
                           "Van Der Merwe  Dr K.|3||||083 555 0303|||vdm@example.org|" + lastMonthEnd,
                           "Zulu  Prof Z.|6||||084 555 0606||||" + ago(65),
                           "van der Merwe  Mrs A.B.|2||021 555 0201|||2 Kloof St|||" + monthStart.toString("yyyy-MM-dd"),
                           "Östreich  Ms Ö.|4||||||||" + ago(40), "Ψ-Credit  Mr X.|37||||083 555 3737||||" + ago(3)};
    }
    void reports()
    {
        QFETCH(int, index);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QString, setup);
        QFETCH(QStringList, lines);
        QVERIFY((!setup.startsWith("early") || earlyPractice()) && (setup != "bad" || badPractice()));
        if (setup.endsWith("fr"))
            QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
        admin->ui.tabWidget->setCurrentWidget(admin->ui.tabWidget->widget(3));
        admin->show();
        process(admin, index, start, end);
        QCOMPARE(shown(admin), lines);
        QVERIFY(!QApplication::overrideCursor() && admin->statusBar()->currentMessage().isEmpty());
        checkReadable(admin);
    }

    // One client's balance and its ageing as of today; settled accounts are not listed.
    void debtAgeing_data()
    {
        QTest::addColumn<QString>("entries"); // days ago, kind, amount
        QTest::addColumn<QString>("aged");    // Balance, Curr., 30, 60, 90, 120+; empty: not listed
        QTest::newRow("paid in part: the oldest charge settled first")
            << "100 I 100, 50 I 60, 10 I 40, 5 R -120" << "80.00|40.00|40.00|0.00|0.00|0.00";
        QTest::newRow("either side of every period's edge") << "29 I 1, 30 I 2, 59 I 4, 60 I 8, 89 I 16, 90 I 32, 119 I 64, 120 I 128"
                                                            << "255.00|1.00|6.00|24.00|96.00|128.00";
        QTest::newRow("dated in the future") << "-3 I 12" << "12.00|12.00|0.00|0.00|0.00|0.00";
        QTest::newRow("a credit on the latest payments") << "90 I 50, 100 R -30, 40 R -40, 3 RF -20"
                                                         << "-40.00|-20.00|-20.00|0.00|0.00|0.00";
        QTest::newRow("owing a cent") << "20 I 10, 10 R -9.99" << "";
        QTest::newRow("a cent in credit") << "20 I 5, 10 R -5.01" << "";
        QTest::newRow("two cents long owed") << "400 I 0.02" << "0.02|0.00|0.00|0.00|0.00|0.02";
        QTest::newRow("quotations and vouchers count nowhere") << "10 I 50, 10 Q 100, 5 VR -50, 70 Q 5"
                                                               << "50.00|50.00|0.00|0.00|0.00|0.00";
        QTest::newRow("only a quotation") << "10 Q 100" << "";
    }
    void debtAgeing()
    {
        QFETCH(QString, entries);
        QFETCH(QString, aged);
        QList<QVariantList> dated;
        for (const QString &entry : entries.split(", ")) {
            const QStringList field = entry.split(' ');
            dated << QVariantList{30, ago(field[0].toInt()), field[1], field[2].toDouble()};
        }
        QVERIFY(addClients({{30, "Mr", "T.", "Ŧest", ago(500)}}) && addEntries(dated));
        process(admin, Debt, today, today);
        const QString client = "Ŧest  Mr T.|30|";
        QCOMPARE(shown(admin).filter(client), aged.isEmpty() ? QStringList() : QStringList{client + aged});
    }

    // The clients' last visits and aged balances, each read in the one statement of its report, are
    // what a statement per client gives.
    void sameAsOneClientAtATime()
    {
        QVERIFY(earlyPractice() && badPractice());
        process(admin, AllClients, today, today);
        for (const QStringList &row : rows(admin)) {
            const QVariant visit = TestSupport::value("SELECT MAX(MyDate) FROM Journal WHERE AccountNumber=" + row.at(1));
            QCOMPARE(row.last(), visit.isNull() ? QString("Unknown") : visit.toString());
        }
        QStringList listed, open;
        double balance = 0.0;
        process(admin, Debt, today, today);
        for (const QStringList &row : rows(admin).mid(0, rows(admin).size() - 2)) { // the two totals last
            QCOMPARE(row.mid(2), agedOneByOne(row.at(1), &balance));
            listed << row.at(1);
        }
        for (const QStringList &client : TestSupport::rows("SELECT AccountNumber FROM Owner")) {
            agedOneByOne(client.at(0), &balance);
            if (std::abs(balance) > 0.01)
                open << client.at(0);
        }
        listed.sort();
        open.sort();
        QCOMPARE(listed, open);
        QCOMPARE(listed.size(), 15);
    }
};

QTEST_MAIN(ClientReportsTest)
#include "tst_clientreports.moc"
