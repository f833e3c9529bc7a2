#!/usr/bin/python3 -B
"""Uses the program as with a screen reader: finds the controls of all pages, and acts on them."""

import sys
from collections import Counter
from pathlib import Path

from accessible_program import PRESENTATION, WORK_PAGE, Program

RESOURCES = Path(__file__).resolve().parents[2] / "resources"

# For each page its window, the window and the control that open it, how many controls it shows of
# each role, and which of them are locked.
VIEWER = {"document frame": 1, "push button": 3}
PAGES = [
    ("SINTAXE", PRESENTATION, "Sintaxe", VIEWER, {"Página anterior"}),
    ("FUNÇÕES DEFINIDAS", PRESENTATION, "Funções definidas", VIEWER, {"Página anterior"}),
    ("INSTRUÇÕES", PRESENTATION, "Instruções", VIEWER, {"Página anterior"}),
    ("COMENTÁRIOS", PRESENTATION, "Comentários", VIEWER, {"Página anterior"}),
    ("Conceito de derivada: CLINORAMA", PRESENTATION, "Conceito de derivada",
     {"document frame": 2, "push button": 4, "scroll bar": 1}, {"Anterior", "Parar", "Continuar"}),
    (WORK_PAGE, PRESENTATION, "Clinorama",
     {"text": 2, "push button": 10, "radio button": 2, "scroll bar": 1}, set()),
    ("EXEMPLOS", WORK_PAGE, "Exemplos", {"push button": 7}, set()),
    ("Relação da função com as derivadas: CLINORAMA", WORK_PAGE, "Relacionar",
     {"text": 1, "push button": 25}, set()),
]


def check(what, was, expected):
    if was != expected:
        sys.exit(f"{what}: {was} instead of {expected}")


def check_page(window, counts, locked):
    page = f"the page '{window.name}'"
    nodes = list(window.nodes())
    controls = [node for node in nodes if "focusable" in node.states]
    check(f"controls of {page}", Counter(node.role for node in controls), counts)
    check(f"locked on {page}",
          {node.name for node in controls if "enabled" not in node.states}, locked)
    spoken = Counter(node.place() for node in controls)
    check(f"not to be told apart on {page}", [name for name in spoken if spoken[name] > 1], [])
    check(f"without a name on {page}",
          {node.role for node in nodes if not node.name} - {"filler", "menu bar", "notification"},
          set())
    check(f"without a role on {page}", [node for node in nodes if node.name
                                        and node.role in ("filler", "unknown", "invalid")], [])


def check_pages():
    for name, opener_window, opener, counts, locked in PAGES:
        role = "menu item" if opener_window == PRESENTATION else "push button"
        program.window(opener_window).find(role, opener).act()  # though it is behind others
        check_page(program.wait_for("frame", name, "active"), counts, locked)
        names = [window.name for window in program.windows()]
        check("windows of a name", sorted(set(names)), sorted(names))


def check_announced(*expected):
    program.wait_until(f"announced: {expected}", lambda: len(program.announced) >= len(expected))
    check("announced", program.announced, list(expected))
    program.announced.clear()


def check_texts(window, button, texts):
    """Turns pages, reads them, and hears them."""
    for name, file in texts:
        program.window(window).find("push button", button).act()
        document = program.wait_until(
            name, lambda: program.window(window).find("document frame", name))
        words = (RESOURCES / file).read_text()
        check(f"the words of {name}", document.read(), words)
        program.wait_until(f"the end of a motion on {name}", lambda: program.window(window).find(
            "push button", button, "enabled"))
        check_announced(words)


def come_back_to_the_work_page():
    program.window(PRESENTATION).find("menu item", "Clinorama").act()
    program.wait_for("frame", WORK_PAGE, "active")


def check_refusal():
    """A point on the edge of the domain, written and plotted without a key or a mouse."""
    program.find("text", "Expressão analítica da função").write("sqr(x)")
    program.find("text", "Abcissa do ponto").write("0")
    program.find("push button", "Desenhar").act()
    program.find("radio button", "derivada à esquerda").act()
    program.wait_for("label", "Esta função não tem derivada à esquerda desse ponto.")
    program.find("push button", "OK").act()
    program.wait_for("frame", WORK_PAGE, "active")
    program.wait_for("radio button", "derivada à esquerda", "checked")


def check_derivative():
    def value():
        label = program.find("label", "Valor da derivada à direita: .+")
        return label and label.name

    program.find("radio button", "derivada à direita").act()
    program.wait_until("a first value", value)
    program.find("push button", "Parar").act()
    program.wait_for("push button", "Continuar")
    stands_at = value()
    check("locked in a motion", program.find("push button", "Desenhar", "enabled"), None)
    program.find("push button", "Continuar").act()
    program.wait_until("another value", lambda: value() != stands_at)
    program.wait_for("push button", "Desenhar", "enabled")
    check_announced("Valor da derivada à direita: + ∞")
    check("the value", value(), "Valor da derivada à direita: + ∞")


program = Program(sys.argv[1])
check_page(program.wait_for("frame", PRESENTATION, "active"), {}, set())
check_pages()
program.find("push button", "Sair ").act()
come_back_to_the_work_page()
check_refusal()
check_derivative()
check_texts("SINTAXE", "Página seguinte",
            [(f"Página {n}", f"manual/sintaxe_0{n}.txt") for n in (2, 3)])
check_texts("Conceito de derivada: CLINORAMA", "Seguinte",
            [(f"Texto da página {n}", f"lesson/pagina_0{n}.txt") for n in range(1, 9)])
# Nothing old is announced when a page is shown again.
program.find("push button", "Relacionar").act()
program.wait_for("push button", "Sair ").act()
come_back_to_the_work_page()
check_announced()
print("All pages were found, read and used through the accessibility bus.")
