// The directory's answers through this phone's XML reader and through three others: parse, read every field, free.
// "touch" is what no reader can leave out that gives such trees: their records get their memory, are written and
// read.

#include "ezxml.h"
#include "ezxmlmemory.h"

#include <benchmark/benchmark.h>

#include <expat.h>
#include <pugixml.hpp>
#include <rapidxml/rapidxml.hpp>

#include <algorithm>
#include <cstring>
#include <ctime>
#include <map>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string data(const char *type, const char *label, const std::string &value, bool isPhone)
{
    return std::string("    <data fontsize=\"20\" isphone=\"") + (isPhone ? "true" : "false") + "\">\n      <type>"
        + type + "</type>\n      <label>" + label + "</label>\n      <value>" + value + "</value>\n    </data>\n";
}

const std::string &document(int items)
{
    static std::map<int, std::string> documents;
    std::string &text = documents[items];
    if (!text.empty())
        return text;
    text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<directory>\n  <display charset=\"utf-8\" pageinfo=\"1/1\" "
           "path=\"/pages\" count=\""
        + std::to_string(items) + "\" timestamp=\"20240501120000\"/>\n";
    for (int i = 0; i < items; ++i) {
        const std::string number = std::to_string(i);
        text += "  <item>\n" + data("name", "Name", "Marguerite Featherstone " + number, false)
            + data("number", "Number", "+49 30 5550 " + number, true)
            + data("department", "Department", "Research &amp; Development " + std::to_string(i % 40), false)
            + "  </item>\n";
    }
    return text += "</directory>\n";
}

/// What a reader found, so that none gets away with reading less.
struct Sum
{
    std::size_t fields = 0;
    std::size_t bytes = 0;

    void add(const char *text)
    {
        ++fields;
        bytes += std::strlen(text);
    }
};

Sum readOurs(char *text, std::size_t length)
{
    Sum sum;
    ezxml *root = ezxml_parse_str(text, length);
    sum.add(ezxml_attr(ezxml_child(root, "display"), "count"));
    for (ezxml *item = ezxml_child(root, "item"); item; item = item->next) {
        for (ezxml *field = ezxml_child(item, "data"); field; field = field->next) {
            sum.add(ezxml_attr(field, "fontsize"));
            sum.add(ezxml_attr(field, "isphone"));
            for (const char *name : {"type", "label", "value"})
                sum.add(ezxml_child(field, name)->txt);
        }
    }
    ezxml_free(root);
    return sum;
}

Sum readPugi(char *text, std::size_t length)
{
    Sum sum;
    pugi::xml_document document;
    document.load_buffer_inplace(text, length);
    const pugi::xml_node root = document.document_element();
    sum.add(root.child("display").attribute("count").value());
    for (pugi::xml_node item = root.child("item"); item; item = item.next_sibling("item")) {
        for (pugi::xml_node field = item.child("data"); field; field = field.next_sibling("data")) {
            sum.add(field.attribute("fontsize").value());
            sum.add(field.attribute("isphone").value());
            for (const char *name : {"type", "label", "value"})
                sum.add(field.child_value(name));
        }
    }
    return sum;
}

/// Wants a text that ends in a NUL.
Sum readRapid(char *text, std::size_t)
{
    Sum sum;
    rapidxml::xml_document<> document;
    document.parse<0>(text);
    const rapidxml::xml_node<> *root = document.first_node();
    sum.add(root->first_node("display")->first_attribute("count")->value());
    for (auto *item = root->first_node("item"); item; item = item->next_sibling("item")) {
        for (auto *field = item->first_node("data"); field; field = field->next_sibling("data")) {
            sum.add(field->first_attribute("fontsize")->value());
            sum.add(field->first_attribute("isphone")->value());
            for (const char *name : {"type", "label", "value"})
                sum.add(field->first_node(name)->value());
        }
    }
    return sum;
}

struct ExpatReader
{
    Sum sum;
    std::string text;
};

void XMLCALL startElement(void *user, const XML_Char *name, const XML_Char **attributes)
{
    auto *reader = static_cast<ExpatReader *>(user);
    reader->text.clear();
    for (; *attributes; attributes += 2) {
        if (std::strcmp(name, "data") == 0 || std::strcmp(attributes[0], "count") == 0)
            reader->sum.add(attributes[1]);
    }
}

void XMLCALL endElement(void *user, const XML_Char *name)
{
    auto *reader = static_cast<ExpatReader *>(user);
    if (std::strcmp(name, "type") == 0 || std::strcmp(name, "label") == 0 || std::strcmp(name, "value") == 0)
        reader->sum.add(reader->text.c_str());
}

void XMLCALL characterData(void *user, const XML_Char *text, int length)
{
    static_cast<ExpatReader *>(user)->text.append(text, static_cast<std::size_t>(length));
}

Sum readExpat(char *text, std::size_t length)
{
    ExpatReader reader;
    XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetUserData(parser, &reader);
    XML_SetElementHandler(parser, startElement, endElement);
    XML_SetCharacterDataHandler(parser, characterData);
    XML_Parse(parser, text, static_cast<int>(length), 1);
    XML_ParserFree(parser);
    return reader.sum;
}

/// What this thread took of the processor: other programs at work do not blur it.
double secondsOnCpu()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// At least: asking for the time takes half a microsecond itself.
constexpr int PassItems = 1000;

using Reader = Sum (*)(char *, std::size_t);

/// What `work` takes for a document. It gets a fresh copy, as readers edit it, whose making is not counted.
template <typename Work> void measure(benchmark::State &state, Work work)
{
    const int items = static_cast<int>(state.range(0));
    const std::string &original = document(items);
    std::vector<std::string> copies(static_cast<std::size_t>(std::max(1, PassItems / items)));
    for (auto _ : state) {
        std::fill(copies.begin(), copies.end(), original);
        const double start = secondsOnCpu();
        for (std::string &copy : copies)
            work(copy.data(), copy.size());
        state.SetIterationTime((secondsOnCpu() - start) / static_cast<double>(copies.size()));
    }
    state.counters["per_item"]
        = benchmark::Counter(items, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(original.size()));
}

void measureReader(benchmark::State &state, Reader read)
{
    Sum sum;
    measure(state, [&](char *text, std::size_t length) { sum = read(text, length); });
    if (sum.fields != 1 + 15 * static_cast<std::size_t>(state.range(0)))
        state.SkipWithError("fields were lost");
}

/// The text is read once; the records of its elements and their lists of attributes are written once and read once.
void measureTouch(benchmark::State &state)
{
    static constexpr std::size_t ItemWords = 13 * sizeof(ezxml) / sizeof(std::size_t) + 3 * 6;
    const std::size_t words = ItemWords * static_cast<std::size_t>(state.range(0));
    measure(state, [&](const char *text, std::size_t length) {
        EzxmlMemory memory;
        memory.expect(words * sizeof(std::size_t));
        auto *records = memory.array<std::size_t>(words);
        std::fill_n(records, words, std::strlen(text));
        benchmark::DoNotOptimize(records);
        const std::size_t read = std::accumulate(records, records + words, std::size_t(0));
        if (read != words * length)
            state.SkipWithError("records were lost");
    });
}

}

int main(int argc, char **argv)
{
    const std::pair<const char *, Reader> readers[] = {
        {"xml/ours", readOurs}, {"xml/pugixml", readPugi}, {"xml/RapidXML", readRapid}, {"xml/Expat", readExpat}};
    for (const int items : {20, 1000, 20000, 200000}) {
        const auto add = [items](auto *benchmark) {
            benchmark->Arg(items)->UseManualTime()->Repetitions(27);
            benchmark->Iterations(std::max(1, 100000 / std::max(items, PassItems)));
        };
        for (const auto &[name, reader] : readers)
            add(benchmark::RegisterBenchmark(name, measureReader, reader));
        add(benchmark::RegisterBenchmark("xml/touch", measureTouch));
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
