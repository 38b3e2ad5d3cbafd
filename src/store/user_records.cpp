#include "store/user_records.h"

#include "base/numbers.h"
#include "base/texts.h"
#include "records/record_set.h"
#include "store/user_tables.h"

namespace {

void SetUser(RecordSet& users, const QString& name, double spendLimit)
{
    users.SetField(UserField::UserName, name.toStdString());
    users.SetField(UserField::SpendLimit, spendLimit);
    users.Update();
}

void SetNumbersAndDays(RecordSet& entries, const EntryNumbers& numbers, const DaySet& days)
{
    for (int i = 0; i < EntryBalls; ++i)
        entries.SetField(EntryField::FirstBall + i, numbers.at(static_cast<size_t>(i)));
    for (int day = 0; day < DaysOfWeek; ++day)
        entries.SetField(EntryField::Monday + day, days.at(static_cast<size_t>(day)) ? -1 : 0);
    entries.Update();
}

} // namespace

UserRow ReadUser(const RecordRow& row)
{
    return {row.WholePart(UserField::UserId), FromUtf8(row.Text(UserField::UserName)),
            row.Number(UserField::SpendLimit), row.Mark()};
}

EntryRow ReadEntry(const RecordRow& row)
{
    EntryRow entry;
    entry.number = row.WholePart(EntryField::EntryId);
    entry.userId = row.WholePart(EntryField::UserId);
    entry.drawType = static_cast<int>(row.WholePart(EntryField::DrawType));
    for (int i = 0; i < EntryBalls; ++i)
        entry.numbers.at(static_cast<size_t>(i)) = row.Number(EntryField::FirstBall + i);
    for (int day = 0; day < DaysOfWeek; ++day)
        entry.days.at(static_cast<size_t>(day)) = row.Flag(EntryField::Monday + day);
    return entry;
}

std::vector<UserRow> ReadAllUsers(RecordSet& users)
{
    std::vector<UserRow> rows;
    for (users.MoveFirst(); !users.Eof(); users.MoveNext())
        rows.push_back(ReadUser(users));
    return rows;
}

std::vector<EntryRow> ReadAllEntries(RecordSet& entries)
{
    std::vector<EntryRow> rows;
    entries.MoveFirst();
    rows.reserve(static_cast<size_t>(entries.Count()));
    for (; !entries.Eof(); entries.MoveNext())
        rows.push_back(ReadEntry(entries));
    return rows;
}

RecordList ListEntriesOf(RecordSet& entries, std::int64_t userId, int drawType)
{
    return entries.ListOf([=](const RecordRow& row) {
        return row.WholePart(EntryField::UserId) == userId && row.WholePart(EntryField::DrawType) == drawType;
    });
}

bool FindUserByName(RecordSet& users, const QString& name)
{
    for (users.MoveFirst(); !users.Eof(); users.MoveNext())
        if (FromUtf8(users.Text(UserField::UserName)) == name)
            return true;
    return false;
}

int CountEntries(RecordSet& entries, std::int64_t userId)
{
    return entries.CountOf(EntryField::UserId, static_cast<double>(userId));
}

bool IsUpToLimit(int count, double spendLimit)
{
    return count >= spendLimit;
}

bool MayStoreEntries(int count, int more, double spendLimit)
{
    return count + more <= spendLimit;
}

void AddUser(RecordSet& users, const QString& name, double spendLimit)
{
    users.AddNew();
    users.SetField(UserField::UserId, static_cast<double>(users.NextNumber()));
    SetUser(users, name, spendLimit);
}

void ChangeUser(RecordSet& users, const QString& name, double spendLimit)
{
    users.Edit();
    SetUser(users, name, spendLimit);
}

void AddEntry(RecordSet& entries, const EntryRow& entry)
{
    entries.AddNew();
    entries.SetField(EntryField::EntryId, static_cast<double>(entry.number));
    entries.SetField(EntryField::UserId, static_cast<double>(entry.userId));
    entries.SetField(EntryField::DrawType, entry.drawType);
    SetNumbersAndDays(entries, entry.numbers, entry.days);
}

void ChangeEntry(RecordSet& entries, const EntryNumbers& numbers, const DaySet& days)
{
    entries.Edit();
    SetNumbersAndDays(entries, numbers, days);
}

void DeleteUserEntries(RecordSet& entries, std::int64_t userId)
{
    for (entries.MoveFirst(); !entries.Eof(); entries.MoveNext())
        if (entries.Row().WholePart(EntryField::UserId) == userId)
            entries.Delete();
}
