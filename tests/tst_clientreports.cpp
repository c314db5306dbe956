// The client reports on the seeded practice: new clients by month and in detail, monthly and full
// expenditure, debt and credit with its ageing, bad debtors and all clients.
#include "admin.h"
#include "reportpractice.h"
#include "testsupport.h"
#include "utility.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QStatusBar>
#include <QtTest>

using Rows = QList<QStringList>;
using ReportPractice::choose;

namespace {

enum Report { History = 9, Detailed = 10, Monthly = 12, Full = 13, Debt = 14, BadDebtors = 15, AllClients = 20 };

QString text(const QDate &date) { return date.toString("yyyy-MM-dd"); }
QString ago(int days) { return text(QDate::currentDate().addDays(-days)); }

// Each client: account, "Title|Initials|Surname" (the surname as shown; stored encoded), created,
// then optionally home, work and cell telephone, e-mail, bad debt flag.
bool addClients(const QList<QVariantList> &clients)
{
    QList<QVariantList> rows;
    for (QVariantList client : clients) {
        const QStringList name = client.at(1).toString().split('|');
        client.replace(1, name.at(0));
        client.insert(2, name.at(1));
        client.insert(3, Utility::rot13(name.at(2)));
        while (client.size() < 9)
            client << "";
        if (client.size() < 10)
            client << "N";
        rows << client;
    }
    return ReportPractice::insert("Owner", QString("AccountNumber,Title,Initials,Surname,Created,TelHome,TelWork,Cell,"
                                                   "Email,BadDebt").split(','), rows);
}

// Each entry: account, date, kind, amount (its value; no rounding).
bool addEntries(const QList<QVariantList> &entries)
{
    QList<QVariantList> rows;
    for (const QVariantList &entry : entries)
        rows << (QVariantList{9000 + rows.size()} + entry + QVariantList{0.0});
    return ReportPractice::insert("Journal", {"MyNumber", "AccountNumber", "MyDate", "Description", "Amount", "Rounding"},
                                  rows);
}

// Clients of early 2021 and their spending, far from the seeded ones (all within 800 days of today).
// The later account of each tie is written first, so that only a deliberate order lists it second.
bool earlyPractice()
{
    return addClients({{26, "Ms|A.|Adams", "2021-03-01"},
                       {20, QString::fromUtf8("Mr|D.|Dvořák"), "2021-03-31", "021 555 2001", "", "082 555 2001",
                        "dvorak@example.org"},
                       {21, QString::fromUtf8("Ms|Ł.|Łukasiewicz"), "2021-03-01", "", "011 555 2102"},
                       {22, "Mrs|Q.|O'Hara \\ Back", "2021-01-01"},
                       {23, QString::fromUtf8("Dr|S.|Σωκράτης"), "2020-10-31"},
                       {24, QString::fromUtf8("Mr|N.|Nguyễn"), "2020-12-31"},
                       {25, "Mr|E.|Early", "2020-09-30"}})
        && addEntries({{21, "2021-03-31", "I", 75.0},
                       {20, "2021-03-05", "I", 100.0},
                       {20, "2021-03-20", "RF", -25.0},
                       {22, "2021-03-10", "I", 0.01},
                       {23, "2021-03-02", "I", 10.0},
                       {23, "2021-03-03", "RF", -60.0},
                       {23, "2021-03-04", "R", -100.0},
                       {24, "2021-02-28", "I", 5.005},
                       {24, "2021-04-01", "I", 10.0},
                       {26, "2021-03-15", "I", 40.0},
                       {26, "2021-03-15", "Q", 500.0},
                       {26, "2021-03-16", "R", -40.0},
                       {26, "2021-03-17", "VR", 10.0},
                       {25, "2021-03-20 16:00", "I", 60.0}});
}

// Bad debtors beside the seeded two (O'Brien owing 300, Zulu 80): one in credit, one without any
// entry, one with only a quotation, two more owing 80 (the later account written first).
bool badPractice()
{
    return addClients({{41, "Mr|F.|Forty-One", ago(900), "", "", "", "", "Y"},
                       {9, "Mrs|N.|Nine", ago(900), "", "", "", "", "Y"},
                       {37, QString::fromUtf8("Mr|X.|Ψ-Credit"), ago(900), "", "", "083 555 3737", "", "Y"},
                       {38, "Ms|E.|Empty", ago(900), "", "", "", "", "Y"},
                       {39, "Ms|Q.|Quoted", ago(900), "", "", "", "", "Y"}})
        && addEntries({{41, ago(10), "I", 80.0}, {9, ago(10), "I", 80.0}, {37, ago(5), "I", 10.0},
                       {37, ago(3), "R", -25.0}, {39, ago(3), "Q", 40.0}});
}

// Report `index` run from the tab as a person does it: chosen, dates set, Process pressed.
Rows run(Admin *admin, int index, const QDate &start = QDate::currentDate(), const QDate &end = QDate::currentDate())
{
    choose(admin, index, start, end);
    admin->processQuery();
    return ReportPractice::rows(admin);
}

QString money(double value) { return Utility::numStr(value, 2); }

// One client's balance walked entry by entry in date order, each payment settling the oldest charges
// still open (and each charge the oldest credit), then what is left aged as of today: the ageing the
// report must give, found the slow way with a statement of the client's own.
QStringList agedOneByOne(const QString &account, double *balance)
{
    const QDate today = QDate::currentDate();
    QList<QPair<QDate, double>> open; // the entries still open, oldest first; all of one sign
    QSqlQuery query;
    query.exec("SELECT MyDate,Amount-Rounding FROM Journal WHERE AccountNumber=" + account
               + " AND Description!='Q' AND Description!='VR' ORDER BY MyDate");
    *balance = 0.0;
    while (query.next()) {
        double value = query.value(1).toDouble();
        *balance += value;
        while (value != 0.0 && !open.isEmpty() && (open.first().second > 0) != (value > 0)) {
            const double settled = (value > 0) ? std::min(value, -open.first().second) : std::max(value, -open.first().second);
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

} // namespace

class ClientReportsTest : public TestSupport::EngineSuite
{
    Q_OBJECT

    Admin *admin = nullptr;

private slots:
    void initTestCase()
    {
        EngineSuite::initTestCase();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }

    void init()
    {
        EngineSuite::init();
        QVERIFY(ReportPractice::seed(QDate::currentDate()));
        admin = TestSupport::makeAdmin();
    }

    // Each report's columns and the status message of the two long ones, gone when they end. Every
    // title shows whole, and so does every number, date and telephone number; a report of up to eight
    // columns fits the window's list, wider ones scroll rather than squeeze.
    void columnsAreReadable_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("columns"); // "title/width/alignment", separated by "|"
        QTest::addColumn<QString>("status");
        QStringList months{"Description/270/auto"};
        for (int m = 0; m < 6; ++m)
            months << QDate::currentDate().addMonths(m - 5).toString("yyyy-MM") + "/70/auto";
        const QString phones = "Home Tel./92/auto|Work Tel./92/auto|Cellular./92/auto|";
        QTest::newRow("New Clients History") << int(History) << months.join('|') << "";
        QTest::newRow("New Clients Detailed") << int(Detailed)
            << "Client/150/auto|Acc No./55/auto|Initial Visit/78/auto|" + phones + "Email Address/170/auto" << "";
        QTest::newRow("Monthly Client Expenditure") << int(Monthly)
            << "Client/200/auto|Acc No./80/auto|Expenditure for " + QDate::currentDate().toString("MMM yyyy") + "/170/right"
            << "Processing Owner Expenditure, this could take a while, please wait..";
        QTest::newRow("Full Client Expenditure") << int(Full)
            << "Client/200/auto|Acc No./80/auto|Total Expenditure to date./170/right"
            << "Processing Full Owner Expenditure, this will take a while, please wait..";
        QTest::newRow("Client Debt/Credit") << int(Debt)
            << "Client/190/auto|Acc No./55/auto|Balance/85/right|Curr./80/right|30/80/right|60/80/right|90/80/right|120+/80/right"
            << "";
        QTest::newRow("Bad Debtors") << int(BadDebtors)
            << "Acc No./55/auto|Client/150/auto|Balance/75/right|Identity No./107/auto|" + phones
                   + "Physical Address/120/auto|Postal Address/100/auto|Notes/150/auto" << "";
        QTest::newRow("All Clients") << int(AllClients)
            << "Client/150/auto|Acc. #/48/auto|Identity No./107/auto|" + phones
                   + "Physical Address/120/auto|Postal Address/100/auto|Email Address/140/auto|Last Visit/78/auto" << "";
    }
    void columnsAreReadable()
    {
        QFETCH(int, index);
        QFETCH(QString, columns);
        QFETCH(QString, status);
        admin->ui.tabWidget->setCurrentWidget(admin->ui.tabWidget->widget(3));
        admin->show();
        QSignalSpy messages(admin->statusBar(), &QStatusBar::messageChanged);
        run(admin, index);
        QCOMPARE(ReportPractice::columns(admin).join('|'), columns);
        QStringList shown;
        for (const QList<QVariant> &message : messages)
            shown << message.at(0).toString();
        QCOMPARE(shown, status.isEmpty() ? QStringList() : QStringList({status, ""}));
        QVERIFY(!QApplication::overrideCursor());

        const QTreeWidget *list = admin->ui.report_list;
        const QStringList whole{"Acc No.", "Acc. #", "Identity No.", "Home Tel.", "Work Tel.", "Cellular.",
                                "Initial Visit", "Last Visit"};
        const Rows rows = ReportPractice::rows(admin);
        int total = 0;
        const QStringList shownColumns = columns.split('|');
        for (int c = 0; c < shownColumns.size(); ++c) {
            const QString title = list->headerItem()->text(c);
            QStringList texts{title};
            if (whole.contains(title) || shownColumns.at(c).endsWith("/right"))
                for (const QStringList &row : rows)
                    texts << row.at(c);
            for (const QString &text : texts)
                QVERIFY2(list->fontMetrics().horizontalAdvance(text) + 8 <= list->columnWidth(c), qPrintable(text));
            total += list->columnWidth(c);
        }
        QVERIFY(!rows.isEmpty());
        if (shownColumns.size() <= 8)
            QVERIFY2(total <= list->viewport()->width() - list->verticalScrollBar()->sizeHint().width(),
                     qPrintable(QString::number(total)));
    }

    // Six months back from the start's month, whatever its day; months without new clients show 0.
    void newClientsHistory_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<QStringList>("counts");
        QTest::newRow("March") << QDate(2021, 3, 15)
                               << QStringList{"2020-10", "2020-11", "2020-12", "2021-01", "2021-02", "2021-03"}
                               << QStringList{"1", "0", "1", "1", "0", "3"};
        QTest::newRow("January, on its last day") << QDate(2021, 1, 31)
            << QStringList{"2020-08", "2020-09", "2020-10", "2020-11", "2020-12", "2021-01"}
            << QStringList{"0", "1", "1", "0", "1", "1"};
        QTest::newRow("June, on its first day") << QDate(2021, 6, 1)
            << QStringList{"2021-01", "2021-02", "2021-03", "2021-04", "2021-05", "2021-06"}
            << QStringList{"1", "0", "3", "0", "0", "0"};
    }
    void newClientsHistory()
    {
        QFETCH(QDate, start);
        QFETCH(QStringList, titles);
        QFETCH(QStringList, counts);
        QVERIFY(earlyPractice());
        QCOMPARE(run(admin, History, start, start.addDays(-100)), Rows({QStringList{"New Clients"} + counts}));
        QCOMPARE(ReportPractice::titles(admin), QStringList{"Description"} + titles);
    }

    // Clients created from the start to the end day, oldest first, with the numbers to call them on,
    // and how many there are.
    void newClientsDetailed_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<Rows>("rows");
        const QStringList hara{"O'Hara \\ Back  Mrs Q.", "22", "2021-01-01", "", "", "", ""};
        const QStringList adams{"Adams  Ms A.", "26", "2021-03-01", "", "", "", ""};
        const QStringList lukasiewicz{QString::fromUtf8("Łukasiewicz  Ms Ł."), "21", "2021-03-01", "", "011 555 2102", "", ""};
        const QStringList dvorak{QString::fromUtf8("Dvořák  Mr D."), "20", "2021-03-31", "021 555 2001", "",
                                 "082 555 2001", "dvorak@example.org"};
        const auto count = [](int n) { return QStringList{"Number of Clients", QString::number(n), "", "", "", "", ""}; };
        QTest::newRow("a quarter") << QDate(2021, 1, 1) << QDate(2021, 3, 31)
                                   << Rows{hara, lukasiewicz, adams, dvorak, count(4)};
        QTest::newRow("one day") << QDate(2021, 3, 1) << QDate(2021, 3, 1) << Rows{lukasiewicz, adams, count(2)};
        QTest::newRow("none") << QDate(2021, 2, 1) << QDate(2021, 2, 28) << Rows{count(0)};
        QTest::newRow("end before start") << QDate(2021, 3, 31) << QDate(2021, 1, 1) << Rows{count(0)};
    }
    void newClientsDetailed()
    {
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(Rows, rows);
        QVERIFY(earlyPractice());
        QCOMPARE(run(admin, Detailed, start, end), rows);
    }

    // Invoices and refunds of the month only, largest first and ties by account; credits and totals
    // of 0.01 or less left out. The month is named in the user's language.
    void monthlyExpenditure_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("title");
        QTest::addColumn<Rows>("rows");
        const Rows march{{QString::fromUtf8("Dvořák  Mr D."), "20", "75.00"},
                         {QString::fromUtf8("Łukasiewicz  Ms Ł."), "21", "75.00"},
                         {"Early  Mr E.", "25", "60.00"},
                         {"Adams  Ms A.", "26", "40.00"}};
        QTest::newRow("March") << QDate(2021, 3, 31) << "en_US" << "Expenditure for Mar 2021" << march;
        QTest::newRow("March, in French") << QDate(2021, 3, 1) << "fr_FR" << "Expenditure for mars 2021" << march;
        QTest::newRow("half a cent") << QDate(2021, 2, 28) << "en_US" << "Expenditure for Feb 2021"
                                     << Rows{{QString::fromUtf8("Nguyễn  Mr N."), "24", "5.01"}};
        QTest::newRow("nothing spent") << QDate(2020, 6, 15) << "en_US" << "Expenditure for Jun 2020" << Rows{};
    }
    void monthlyExpenditure()
    {
        QFETCH(QDate, start);
        QFETCH(QString, locale);
        QFETCH(QString, title);
        QFETCH(Rows, rows);
        QVERIFY(earlyPractice());
        QLocale::setDefault(QLocale(locale));
        const Rows listed = run(admin, Monthly, start, start.addDays(-40));
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QCOMPARE(listed, rows);
        QCOMPARE(ReportPractice::titles(admin), QStringList({"Client", "Acc No.", title}));
    }

    // Everything invoiced or refunded up to and including the start day (a time of that day too),
    // largest first, ties by account, then the sum of the listed totals.
    void fullExpenditure_data()
    {
        QTest::addColumn<QDate>("start");
        QTest::addColumn<Rows>("rows");
        const QStringList early{"Early  Mr E.", "25", "60.00"}, adams{"Adams  Ms A.", "26", "40.00"},
            nguyen{QString::fromUtf8("Nguyễn  Mr N."), "24", "5.01"};
        QTest::newRow("the day of a refund and a late invoice")
            << QDate(2021, 3, 20)
            << Rows{{QString::fromUtf8("Dvořák  Mr D."), "20", "75.00"}, early, adams, nguyen, {"Grand Total", "", "180.01"}};
        QTest::newRow("the day before")
            << QDate(2021, 3, 19)
            << Rows{{QString::fromUtf8("Dvořák  Mr D."), "20", "100.00"}, adams, nguyen, {"Grand Total", "", "145.01"}};
        QTest::newRow("before any") << QDate(2020, 1, 1) << Rows{{"Grand Total", "", "0.00"}};
        QTest::newRow("today")
            << QDate::currentDate()
            << Rows{{"O'Brien  Mr P.", "5", "300.00"},
                    {QString::fromUtf8("Östreich  Ms Ö."), "4", "200.00"},
                    {"Smith  Mr J.", "1", "100.00"},
                    {"Zulu  Prof Z.", "6", "80.00"},
                    {QString::fromUtf8("Dvořák  Mr D."), "20", "75.00"},
                    {QString::fromUtf8("Łukasiewicz  Ms Ł."), "21", "75.00"},
                    early,
                    {"van der Merwe  Mrs A.B.", "2", "55.56"},
                    adams,
                    {"Van Der Merwe  Dr K.", "3", "30.00"},
                    {"Smith  Mr A.", "8", "30.00"},
                    {"Taba  Mr T.", "7", "20.00"},
                    {QString::fromUtf8("Nguyễn  Mr N."), "24", "15.01"},
                    {"Grand Total", "", "1080.56"}};
    }
    void fullExpenditure()
    {
        QFETCH(QDate, start);
        QFETCH(Rows, rows);
        QVERIFY(earlyPractice());
        QCOMPARE(run(admin, Full, start, start.addDays(-1)), rows);
    }

    // One client's balance and its ageing as of today; settled accounts are not listed.
    void debtAgeing_data()
    {
        QTest::addColumn<QList<QVariantList>>("entries"); // days ago, kind, amount
        QTest::addColumn<QStringList>("aged");            // Balance, Curr., 30, 60, 90, 120+; none: not listed
        QTest::newRow("paid in part: the oldest charge settled first")
            << QList<QVariantList>{{100, "I", 100.0}, {50, "I", 60.0}, {10, "I", 40.0}, {5, "R", -120.0}}
            << QStringList{"80.00", "40.00", "40.00", "0.00", "0.00", "0.00"};
        QTest::newRow("either side of every period's edge")
            << QList<QVariantList>{{29, "I", 1.0}, {30, "I", 2.0}, {59, "I", 4.0}, {60, "I", 8.0}, {89, "I", 16.0},
                                   {90, "I", 32.0}, {119, "I", 64.0}, {120, "I", 128.0}}
            << QStringList{"255.00", "1.00", "6.00", "24.00", "96.00", "128.00"};
        QTest::newRow("dated in the future") << QList<QVariantList>{{-3, "I", 12.0}}
                                             << QStringList{"12.00", "12.00", "0.00", "0.00", "0.00", "0.00"};
        QTest::newRow("a credit on the latest payments")
            << QList<QVariantList>{{90, "I", 50.0}, {100, "R", -30.0}, {40, "R", -40.0}, {3, "RF", -20.0}}
            << QStringList{"-40.00", "-20.00", "-20.00", "0.00", "0.00", "0.00"};
        QTest::newRow("owing a cent") << QList<QVariantList>{{20, "I", 10.0}, {10, "R", -9.99}} << QStringList{};
        QTest::newRow("a cent in credit") << QList<QVariantList>{{20, "I", 5.0}, {10, "R", -5.01}} << QStringList{};
        QTest::newRow("two cents long owed") << QList<QVariantList>{{400, "I", 0.02}}
                                             << QStringList{"0.02", "0.00", "0.00", "0.00", "0.00", "0.02"};
        QTest::newRow("quotations and vouchers count nowhere")
            << QList<QVariantList>{{10, "I", 50.0}, {10, "Q", 100.0}, {5, "VR", -50.0}, {70, "Q", 5.0}}
            << QStringList{"50.00", "50.00", "0.00", "0.00", "0.00", "0.00"};
        QTest::newRow("only a quotation") << QList<QVariantList>{{10, "Q", 100.0}} << QStringList{};
    }
    void debtAgeing()
    {
        QFETCH(QList<QVariantList>, entries);
        QFETCH(QStringList, aged);
        QList<QVariantList> dated;
        for (const QVariantList &entry : entries)
            dated << QVariantList{30, ago(entry.at(0).toInt()), entry.at(1), entry.at(2)};
        QVERIFY(addClients({{30, QString::fromUtf8("Mr|T.|Ŧest"), ago(500)}}) && addEntries(dated));
        const Rows listed = run(admin, Debt);
        Rows mine;
        for (const QStringList &row : listed)
            if (row.at(1) == "30")
                mine << row;
        const Rows expected{QStringList{QString::fromUtf8("Ŧest  Mr T."), "30"} + aged};
        QCOMPARE(mine, aged.isEmpty() ? Rows() : expected);
    }

    // Debtors and creditors by name (a settled account left out), then the debtors' and the
    // creditors' column sums.
    void debtCreditList()
    {
        // The seeded balances of the last day of last month are current unless today is the 30th or 31st.
        const bool current = QDate::currentDate().day() < 30;
        const QStringList lastMonth{"30.00", current ? "30.00" : "0.00", current ? "0.00" : "30.00", "0.00", "0.00", "0.00"};
        QCOMPARE(run(admin, Debt),
                 Rows({{"O'Brien  Mr P.", "5", "300.00", "0.00", "0.00", "0.00", "0.00", "300.00"},
                       QStringList{"Smith  Mr A.", "8"} + lastMonth,
                       {"Smith  Mr J.", "1", "100.00", "100.00", "0.00", "0.00", "0.00", "0.00"},
                       {"Taba  Mr T.", "7", "-50.00", "-50.00", "0.00", "0.00", "0.00", "0.00"},
                       QStringList{"Van Der Merwe  Dr K.", "3"} + lastMonth,
                       {"Zulu  Prof Z.", "6", "80.00", "0.00", "0.00", "80.00", "0.00", "0.00"},
                       {QString::fromUtf8("Östreich  Ms Ö."), "4", "50.00", "0.00", "50.00", "0.00", "0.00", "0.00"},
                       {"zzz- Debt Totals -zzz", "", "590.00", current ? "160.00" : "100.00",
                        current ? "50.00" : "110.00", "80.00", "0.00", "300.00"},
                       {"zzz- Credit Totals -zzz", "", "-50.00", "-50.00", "0.00", "0.00", "0.00", "0.00"}}));
    }

    // Marked clients with a balance, largest first and ties by account, credits too, then the total.
    void badDebtors()
    {
        QVERIFY(badPractice());
        const QStringList none(4, QString());
        QCOMPARE(run(admin, BadDebtors),
                 Rows({{"5", "O'Brien  Mr P.", "300.00", "6505055000082", "011 555 0505", "", "", "5 \"Main\" Rd", "",
                        "Owes since last year; 50% promised"},
                       QStringList{"6", "Zulu  Prof Z.", "80.00", "", "", "", "084 555 0606"} + none.mid(1),
                       QStringList{"9", "Nine  Mrs N.", "80.00"} + none + none.mid(1),
                       QStringList{"41", "Forty-One  Mr F.", "80.00"} + none + none.mid(1),
                       QStringList{"37", QString::fromUtf8("Ψ-Credit  Mr X."), "-15.00", "", "", "", "083 555 3737"}
                           + none.mid(1),
                       QStringList{"", "Grand Total", "525.00"} + none + none.mid(1)}));
    }

    // Every client by name with the last day anything was entered on the account, "Unknown" when nothing was.
    void allClients()
    {
        QVERIFY(badPractice());
        const QDate today = QDate::currentDate();
        const QDate monthStart(today.year(), today.month(), 1);
        const auto plain = [&](const QString &name, const QString &account, const QString &visit) {
            return QStringList{name, account} + QStringList(7, QString()) + QStringList{visit};
        };
        QStringList credit = plain(QString::fromUtf8("Ψ-Credit  Mr X."), "37", ago(3));
        credit.replace(5, "083 555 3737");
        QCOMPARE(run(admin, AllClients),
                 Rows({plain("Empty  Ms E.", "38", "Unknown"),
                       plain("Forty-One  Mr F.", "41", ago(10)),
                       plain("Nine  Mrs N.", "9", ago(10)),
                       {"O'Brien  Mr P.", "5", "6505055000082", "011 555 0505", "", "", "5 \"Main\" Rd", "", "", ago(120)},
                       plain("Quoted  Ms Q.", "39", ago(3)),
                       plain("Smith  Mr A.", "8", text(monthStart.addDays(-1))),
                       {"Smith  Mr J.", "1", "7001015000081", "021 555 0101", "021 555 0102", "082 555 0103",
                        "1 Long St Cape Town", "PO Box 1", "smith@example.org", ago(0)},
                       plain("Taba  Mr T.", "7", ago(9)),
                       {"Van Der Merwe  Dr K.", "3", "", "", "", "083 555 0303", "", "", "vdm@example.org",
                        text(monthStart.addDays(-1))},
                       {"Zulu  Prof Z.", "6", "", "", "", "084 555 0606", "", "", "", ago(65)},
                       {"van der Merwe  Mrs A.B.", "2", "", "021 555 0201", "", "", "2 Kloof St", "", "", text(monthStart)},
                       {QString::fromUtf8("Östreich  Ms Ö."), "4", "", "", "", "", "", "", "", ago(40)},
                       credit}));
    }

    // The clients' last visits and aged balances, each read in the one statement of its report, are
    // what a statement per client gives.
    void sameAsOneClientAtATime()
    {
        QVERIFY(earlyPractice() && badPractice());
        for (const QStringList &row : run(admin, AllClients)) {
            const QVariant visit = TestSupport::value("SELECT MAX(MyDate) FROM Journal WHERE AccountNumber=" + row.at(1));
            QCOMPARE(row.last(), visit.isNull() ? QString("Unknown") : visit.toString());
        }
        QStringList listed, open;
        double balance = 0.0;
        for (const QStringList &row : run(admin, Debt)) {
            if (row.at(0).startsWith("zzz-"))
                continue;
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

    // A statement the database refuses is shown; what was listed stays, and the cursor is back.
    void failedStatement_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("table"); // dropped before the second run
        QTest::addColumn<Rows>("rows");     // after the second run
        QTest::newRow("New Clients History") << int(History) << "Owner"
                                             << Rows{{"New Clients", "", "", "", "", "", ""}};
        QTest::newRow("New Clients Detailed") << int(Detailed) << "Owner" << Rows{};
        QTest::newRow("Monthly Client Expenditure, the list as it was")
            << int(Monthly) << "Journal" << Rows{{"Early  Mr E.", "25", "60.00"}};
        QTest::newRow("Full Client Expenditure, the list as it was")
            << int(Full) << "Journal" << Rows{{"Early  Mr E.", "25", "60.00"}, {"Grand Total", "", "60.00"}};
        QTest::newRow("Client Debt/Credit") << int(Debt) << "Journal" << Rows{};
        QTest::newRow("Bad Debtors") << int(BadDebtors) << "Journal" << Rows{};
        QTest::newRow("All Clients") << int(AllClients) << "Journal" << Rows{};
    }
    void failedStatement()
    {
        QFETCH(int, index);
        QFETCH(QString, table);
        QFETCH(Rows, rows);
        QVERIFY(earlyPractice() && TestSupport::exec("DELETE FROM Journal WHERE AccountNumber<>25"));
        const QDate day(2021, 3, 20);
        QVERIFY(!run(admin, index, day, day).isEmpty());
        QVERIFY(TestSupport::exec("DROP TABLE " + table));
        admin->processQuery();
        QCOMPARE(ReportPractice::rows(admin), rows);
        QCOMPARE(TestSupport::prompter()->calls.size(), 1);
        QCOMPARE(TestSupport::prompter()->last().icon, int(Prompter::Critical));
        QVERIFY(!QApplication::overrideCursor());
        QVERIFY(admin->statusBar()->currentMessage().isEmpty());
    }
};

QTEST_MAIN(ClientReportsTest)
#include "tst_clientreports.moc"
