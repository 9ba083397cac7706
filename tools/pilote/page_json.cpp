// One object for each operation.
#include "tools/pilote/page_json.h"

namespace navarun::pilot {

namespace {

using Json = nlohmann::ordered_json;

struct OperationWriter {
    Json operator()(screen::PageStroke const& stroke) const {
        bool const box = stroke.shape == screen::PageStroke::Shape::box;
        return {{"op", box ? "box" : "line"},
                {"x1", stroke.x1},
                {"y1", stroke.y1},
                {"x2", stroke.x2},
                {"y2", stroke.y2}};
    }
    Json operator()(screen::PagePicture const& picture) const {
        Json told{{"op", "picture"},
                  {"name", picture.picture.name()},
                  {"x", picture.x},
                  {"y", picture.y}};
        if (!picture.natural) {
            told["width"] = picture.size.width;
            told["height"] = picture.size.height;
        }
        return told;
    }
    Json operator()(screen::PageText const& text) const {
        return {{"op", "text"},      {"x", text.x},
                {"y", text.y},       {"text", text.text},
                {"font", text.font}, {"size", text.size},
                {"bold", text.bold}, {"color", screen::to_text(text.colour)}};
    }
};

}  // namespace

Json page_as_json(std::string_view target, screen::Page const& page) {
    Json operations = Json::array();
    for (auto const& operation : page.operations) {
        operations.push_back(std::visit(OperationWriter{}, operation));
    }
    return {{"target", target}, {"ratio", page.ratio}, {"ops", operations}};
}

}  // namespace navarun::pilot
