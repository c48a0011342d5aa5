#include "command_line.h"

#include <CLI/CLI.hpp>

#include "texts.h"

namespace pelmar::tool {
namespace {

/// Help in Russian, its columns by letters.
class HelpFormatter final : public CLI::FormatterBase {
public:
    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode) const override
    {
        std::string help = app->get_description() + "\n\nИспользование:\n  " + UsageOf(*app, name) + "\n";
        help += Section("Что указать",
                        app->get_options([](const CLI::Option* option) { return option->get_positional(); }));
        help += Commands(*app);
        help +=
            Section("Параметры", app->get_options([](const CLI::Option* option) { return option->nonpositional(); }));
        return app->get_footer().empty() ? help : help + "\n" + app->get_footer() + "\n";
    }

private:
    static std::string UsageOf(const CLI::App& app, const std::string& name)
    {
        std::string usage = name;
        for (const CLI::Option* const option : app.get_options())
            if (option->get_positional())
                usage += " " + option->get_type_name();
        if (!app.get_subcommands({}).empty())
            usage += " КОМАНДА …";
        return usage + " [ПАРАМЕТРЫ]";
    }

    static std::string Row(const std::string& left, const std::string& right)
    {
        constexpr std::size_t kWidth = 24;
        const std::size_t length = LengthOf(left);
        return "  " + left + std::string(length < kWidth ? kWidth - length : 1, ' ') + right + "\n";
    }

    static std::string Section(const char* title, const std::vector<const CLI::Option*>& options)
    {
        std::string section = options.empty() ? "" : "\n" + std::string(title) + ":\n";
        for (const CLI::Option* const option : options) {
            std::string left = option->get_positional() ? "" : option->get_name(false, true);
            if (option->get_type_size() != 0)
                left += (left.empty() ? "" : " ") + option->get_type_name();
            section += Row(left, option->get_description());
        }
        return section;
    }

    static std::string Commands(const CLI::App& app)
    {
        const std::vector<const CLI::App*> commands = app.get_subcommands({});
        std::string section = commands.empty() ? "" : "\nКоманды:\n";
        for (const CLI::App* const command : commands)
            section += Row(command->get_name(), command->get_description());
        return section;
    }
};

/// The command line with its commands.
class CommandLine {
public:
    CommandLine()
    {
        m_app.formatter(std::make_shared<HelpFormatter>());
        m_app.set_help_flag("-h,--help", "эта справка; после команды — справка о ней");
        m_app.set_version_flag("--version", "PelmarSettings " PELMAR_VERSION "\n", "версия программы");
        m_app.allow_windows_style_options(false); // a path may begin with a slash
        m_app.require_subcommand(0, 1);
        m_app.footer("Код возврата: 0 — чисто или сделано, 1 — есть замечания или отличия, 2 — не сделано.\n\n"
                     "Примеры:\n"
                     "  PelmarSettings check CURRENT.INI\n"
                     "  PelmarSettings diff CURRENT.INI\n"
                     "  PelmarSettings set CURRENT.INI Options2x.SideRoughStep=1/8+0.02\n"
                     "  PelmarSettings apply ЦЕХ.INI D:\\Станки\\01\\CURRENT.INI D:\\Станки\\02\\CURRENT.INI");
        AddReadingCommands();
        AddChangingCommands();
        AddExchangeCommands();
    }

    std::variant<Arguments, std::string> Read(std::vector<std::string> words)
    {
        std::ranges::reverse(words); // as CLI11 takes them
        try {
            m_app.parse(std::move(words));
        } catch (const CLI::CallForHelp&) {
            return m_app.help();
        } catch (const CLI::CallForVersion& version) {
            return std::string(version.what());
        } catch (const CLI::ExtrasError&) {
            throw Wrong(Unexpected());
        } catch (const CLI::ArgumentMismatch& mismatch) {
            const std::string text = mismatch.what(); // "--units: 1 required …"
            throw Wrong("У параметра " + text.substr(0, text.find(':')) + " нет значения, или их больше одного.");
        } catch (const CLI::ParseError&) {
            throw Wrong("Командная строка непонятна.");
        }
        Finish();
        return m_arguments;
    }

private:
    struct Known {
        CLI::App* app;
        Command command;
        std::size_t fewestFiles;
        std::size_t mostFiles;
        std::size_t fewestNames;
        std::size_t mostNames;
    };
    static constexpr std::size_t kAny = 1'000'000;

    CLI::App* Add(Command command, const char* name, const char* description, const char* examples)
    {
        CLI::App* const app = m_app.add_subcommand(name, description);
        app->footer("Примеры:\n" + std::string(examples));
        m_known.push_back({app, command, 0, 0, 0, 0});
        return app;
    }
    void TakeFiles(const char* shown, const char* description, std::size_t fewest, std::size_t most)
    {
        Known& known = m_known.back();
        known.fewestFiles = fewest;
        known.mostFiles = most;
        AddPositional("files", m_arguments.files, shown, description, most > 1);
    }
    void TakeNames(const char* shown, const char* description, std::size_t fewest, std::size_t most)
    {
        Known& known = m_known.back();
        known.fewestNames = fewest;
        known.mostNames = most;
        AddPositional("names", m_arguments.names, shown, description, most > 1);
    }
    void AddPositional(const char* name, std::vector<std::string>& values, const char* shown, const char* description,
                       bool areMany)
    {
        CLI::Option* const option = m_known.back().app->add_option(name, values, description)->type_name(shown);
        if (!areMany)
            option->expected(1)->allow_extra_args(false); // what follows is the next one's
    }
    void TakeDefaults()
    {
        m_known.back()
            .app
            ->add_option("--defaults", m_arguments.defaults,
                         "файл заводских значений; иначе DEFAULT.INI рядом с файлом, иначе встроенные")
            ->type_name("ФАЙЛ");
    }
    void TakeCommon(bool hasJson = true)
    {
        CLI::App* const app = m_known.back().app;
        if (hasJson)
            app->add_flag("--json", m_arguments.isJson, "ответ в JSON (UTF-8), для программ");
        app->add_option("--color", m_color, "цвет: auto (на консоли), always, never")->type_name("РЕЖИМ");
    }

    void AddReadingCommands()
    {
        Add(Command::Check, "check", "Найти ошибки в файлах параметров",
            "  PelmarSettings check CURRENT.INI\n"
            "  PelmarSettings check --json D:\\Станки\\01\\CURRENT.INI D:\\Станки\\02\\CURRENT.INI");
        TakeFiles("ФАЙЛ…", "файлы параметров", 1, kAny);
        TakeCommon();

        Add(Command::Diff, "diff", "Показать отличия от заводских значений или от другого файла",
            "  PelmarSettings diff CURRENT.INI\n"
            "  PelmarSettings diff CURRENT.INI --defaults D:\\Цех\\DEFAULT.INI\n"
            "  PelmarSettings diff CURRENT.INI D:\\Станки\\02\\CURRENT.INI");
        TakeFiles("ФАЙЛ [ФАЙЛ2]", "файл параметров, и с каким сравнить; без второго — с заводскими значениями", 1, 2);
        TakeDefaults();
        TakeCommon();

        Add(Command::List, "list", "Перечислить операции, или параметры операции",
            "  PelmarSettings list\n"
            "  PelmarSettings list Токарная\n"
            "  PelmarSettings list Options2x");
        TakeNames("[ОПЕРАЦИЯ]", "операция или раздел файла", 0, 1);
        TakeDefaults();
        TakeCommon();

        Add(Command::Explain, "explain", "Рассказать о параметре",
            "  PelmarSettings explain SideRoughStep\n"
            "  PelmarSettings explain \"Черновой шаг на сторону\"");
        TakeNames("КЛЮЧ|НАЗВАНИЕ", "ключ, полное имя РАЗДЕЛ.КЛЮЧ или название, как на странице", 1, 1);
        TakeDefaults();
        TakeCommon();
    }

    void AddChangingCommands()
    {
        Add(Command::Set, "set", "Записать значения в файл: все или ни одного",
            "  PelmarSettings set CURRENT.INI Options2x.SideRoughStep=1/8+0.02\n"
            "  PelmarSettings set CURRENT.INI Options2x.SideRoughStepType=Константа Options2x.DepthFirst=да");
        TakeFiles("ФАЙЛ", "файл параметров", 1, 1);
        TakeNames("КЛЮЧ=ВЫРАЖЕНИЕ…",
                  "число, выражение, вариант списка (номер или текст), да или нет; длины — в единицах "
                  "файла",
                  1, kAny);
        TakeCommon();

        Add(Command::Reset, "reset", "Вернуть заводские значения",
            "  PelmarSettings reset CURRENT.INI\n"
            "  PelmarSettings reset CURRENT.INI Токарная Options2x.SideRoughStep");
        TakeFiles("ФАЙЛ", "файл параметров", 1, 1);
        TakeNames("[ОПЕРАЦИЯ|КЛЮЧ…]", "что вернуть; без имён — все параметры операций", 0, kAny);
        TakeDefaults();
        TakeCommon();

        Add(Command::Convert, "convert", "Перевести файл в другие единицы",
            "  PelmarSettings convert CURRENT.INI --units mm");
        TakeFiles("ФАЙЛ", "файл параметров", 1, 1);
        m_known.back().app->add_option("--units", m_arguments.units, "mm или inch")->type_name("ЕДИНИЦЫ");
        TakeCommon();

        Add(Command::Apply, "apply", "Перенести значения образца в другие файлы",
            "  PelmarSettings apply ЦЕХ.INI D:\\Станки\\01\\CURRENT.INI D:\\Станки\\02\\CURRENT.INI\n"
            "  PelmarSettings apply ЦЕХ.INI CURRENT.INI --only Токарная --only Options2x.RapidPlane --dry-run");
        TakeFiles("ОБРАЗЕЦ ФАЙЛ…", "файл-образец, и файлы, которые получат его значения", 2, kAny);
        m_known.back()
            .app->add_option("--only", m_arguments.only, "только эта операция или этот ключ; можно повторять")
            ->type_name("ОПЕРАЦИЯ|КЛЮЧ")
            ->expected(1)
            ->allow_extra_args(false)
            ->take_all();
        m_known.back().app->add_flag("--dry-run", m_arguments.isDryRun, "показать, что изменится, и ничего не писать");
        TakeCommon();
    }

    void AddExchangeCommands()
    {
        Add(Command::Export, "export", "Выписать значения файла в JSON",
            "  PelmarSettings export CURRENT.INI --output цех.json");
        TakeFiles("ФАЙЛ", "файл параметров", 1, 1);
        m_known.back()
            .app->add_option("-o,--output", m_arguments.output, "куда писать; иначе на стандартный вывод")
            ->type_name("ФАЙЛ");
        TakeCommon(false);

        Add(Command::Import, "import", "Записать в файл значения из JSON: все или ни одного",
            "  PelmarSettings import CURRENT.INI цех.json");
        TakeFiles("ФАЙЛ JSON", "файл параметров, и файл JSON, какой пишет export", 2, 2);
        TakeCommon();
    }

    WrongUsage Wrong(const std::string& text) const
    {
        const auto chosen = m_app.get_subcommands();
        const std::string command = chosen.empty() ? "" : " " + chosen.front()->get_name();
        return WrongUsage(text + " Справка: PelmarSettings" + command + " --help");
    }

    std::string Unexpected() const
    {
        const std::vector<std::string> words = m_app.remaining(true);
        if (m_app.get_subcommands().empty() && !words.front().starts_with('-'))
            return "Нет такой команды: «" + words.front() + "».";
        return "Лишнее: " + CLI::detail::join(words, " ") + ".";
    }

    /// What CLI11 would say in English.
    void Finish()
    {
        const auto chosen = m_app.get_subcommands();
        if (chosen.empty())
            throw Wrong("Не указана команда.");
        const Known& known = *std::ranges::find(m_known, chosen.front(), &Known::app);
        m_arguments.command = known.command;
        if (m_arguments.files.size() < known.fewestFiles)
            throw Wrong(known.fewestFiles > 1 ? "Нужно два файла." : "Не указан файл.");
        if (m_arguments.files.size() > known.mostFiles)
            throw Wrong("Файлов слишком много.");
        if (m_arguments.names.size() < known.fewestNames)
            throw Wrong(known.command == Command::Set ? "Не указано, что записать: КЛЮЧ=ВЫРАЖЕНИЕ."
                                                      : "Не указан ключ или название.");
        if (known.command == Command::Convert && m_arguments.units != "mm" && m_arguments.units != "inch")
            throw Wrong("Укажите единицы: --units mm или --units inch.");
        if (m_color == "always")
            m_arguments.color = ColorMode::Always;
        else if (m_color == "never")
            m_arguments.color = ColorMode::Never;
        else if (m_color != "auto")
            throw Wrong("Такого режима цвета нет: «" + m_color + "».");
    }

    CLI::App m_app{"Проверка, сравнение и правка файлов параметров модуля ЧПУ", "PelmarSettings"};
    std::vector<Known> m_known;
    Arguments m_arguments;
    std::string m_color = "auto";
};

} // namespace

std::variant<Arguments, std::string> ReadCommandLine(std::vector<std::string> words)
{
    return CommandLine().Read(std::move(words));
}

} // namespace pelmar::tool
