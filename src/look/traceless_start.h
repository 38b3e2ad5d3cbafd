#pragma once

#include <QByteArray>
#include <QTemporaryDir>

#include <optional>

/// While the application object is constructed and the fonts are read, the toolkit and its libraries make folders of
/// their own where the desktop has not made them: one for the session among the temporary files, and the cache of the
/// fonts in the home folder. As long as this lives they make them in a folder in `scratch`, which is gone afterwards.
/// Folders that are there are used as ever; and so they are where nothing may be written into `scratch`.
class TracelessStart
{
public:
    explicit TracelessStart(const QString& scratch);

private:
    class OtherValue
    {
    public:
        OtherValue(const char* variable, const QByteArray& value);
        ~OtherValue();
        OtherValue(const OtherValue&) = delete;
        OtherValue& operator=(const OtherValue&) = delete;

    private:
        const char* name;
        QByteArray usual;
    };

    std::optional<QTemporaryDir> folder;
    std::optional<OtherValue> temporaryFiles;
    std::optional<OtherValue> caches;
};
