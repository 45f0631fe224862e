// SPDX-License-Identifier: GPL-3.0-or-later
#include "jobqueue.h"
#include "speech.h"
#include "testmain.h"
#include "wav.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

class TestWav final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void samplesAreThoseOfALaw();
    void fileIsAWavOfItsSamples();
    void headerIsValidWhileTheFileGrows();
    void unwritablePathIsTold();
    void speechIsKept();
    void newSpeechEmptiesTheFile();
    void otherCodecsAreNotKept();
    void withoutAPathNothingIsKept();

private:
    QByteArray file() const;
    quint32 wordAt(int offset) const;

    std::unique_ptr<QTemporaryDir> folder_;
    std::string path_;
};

namespace {

LinkFrame frame(LinkCodec codec, int samples)
{
    LinkFrame made;
    describe(made, codec, false, 0);
    made.bytes.assign(static_cast<std::size_t>(samples), 0xd5);
    return made;
}

} // namespace

void TestWav::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    path_ = folder_->filePath("speech.wav").toStdString();
}

QByteArray TestWav::file() const
{
    QFile file(QString::fromStdString(path_));
    file.open(QFile::ReadOnly);
    return file.readAll();
}

quint32 TestWav::wordAt(int offset) const
{
    const QByteArray bytes = file().leftJustified(offset + 4, '\0');
    quint32 value = 0;
    for (int i = 3; i >= 0; --i)
        value = value << 8 | static_cast<quint8>(bytes[offset + i]);
    return value;
}

// Values of the standard's table.
void TestWav::samplesAreThoseOfALaw()
{
    QCOMPARE(linearFromALaw(0xd5), std::int16_t{8});
    QCOMPARE(linearFromALaw(0x55), std::int16_t{-8});
    QCOMPARE(linearFromALaw(0xaa), std::int16_t{32256});
    QCOMPARE(linearFromALaw(0x2a), std::int16_t{-32256});
    QCOMPARE(linearFromALaw(0x80), std::int16_t{5504});
    QCOMPARE(linearFromALaw(0xc5), std::int16_t{264});
}

void TestWav::fileIsAWavOfItsSamples()
{
    QVERIFY(WavWriter::create(path_)->append(std::string("\xd5\x55", 2)));
    QCOMPARE(file(),
        QByteArray("RIFF\x28\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1f\0\0\x80\x3e\0\0\2\0\x10\0"
                   "data\4\0\0\0\x08\0\xf8\xff",
            48));
}

void TestWav::headerIsValidWhileTheFileGrows()
{
    const auto writer = WavWriter::create(path_);
    QCOMPARE(file().size(), 44);
    const std::string packet(320, '\xd5');
    for (int i = 0; i < 30; ++i)
        QVERIFY(writer->append(packet));
    // A second of sound is in the header; the rest is in the file or on its way.
    QCOMPARE(wordAt(40), quint32{16000});
    QCOMPARE(wordAt(4), quint32{16036});
    QVERIFY(file().size() >= 16044);
}

void TestWav::unwritablePathIsTold()
{
    QVERIFY(WavWriter::create(folder_->filePath("none/a.wav").toStdString()) == nullptr);
}

void TestWav::speechIsKept()
{
    std::optional<JobQueue> jobs(std::in_place);
    SpeechFile speech(path_, "UID", *jobs);
    speech.begin();
    speech.append(frame(LinkCodecALaw, 320));
    speech.append(frame(LinkCodecALaw, 320));
    speech.end();
    jobs.reset();
    QCOMPARE(file().size(), 44 + 2 * 640);
    QCOMPARE(wordAt(40), quint32{1280});
}

void TestWav::newSpeechEmptiesTheFile()
{
    std::optional<JobQueue> jobs(std::in_place);
    SpeechFile speech(path_, "UID", *jobs);
    speech.begin();
    speech.append(frame(LinkCodecALaw, 320));
    speech.begin();
    speech.append(frame(LinkCodecALaw, 100));
    speech.end();
    jobs.reset();
    QCOMPARE(wordAt(40), quint32{200});
    QCOMPARE(file().size(), 244);
}

void TestWav::otherCodecsAreNotKept()
{
    std::optional<JobQueue> jobs(std::in_place);
    SpeechFile speech(path_, "UID", *jobs);
    speech.begin();
    speech.append(frame(LinkCodecH264, 320));
    speech.end();
    jobs.reset();
    QCOMPARE(file().size(), 44);
}

void TestWav::withoutAPathNothingIsKept()
{
    std::optional<JobQueue> jobs(std::in_place);
    SpeechFile speech({}, "UID", *jobs);
    speech.begin();
    speech.append(frame(LinkCodecALaw, 320));
    speech.end();
    jobs.reset();
    QVERIFY(file().isEmpty());
}

ORVA_TEST(TestWav)
#include "tst_wav.moc"
