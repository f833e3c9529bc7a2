#!/usr/bin/python3 -B
"""Uses the program by keys alone, and sees on the accessibility bus what they do."""

import subprocess
import sys
import time

from accessible_program import PATIENCE, PRESENTATION, WORK_PAGE, Program


def press(*keys, how="key"):
    subprocess.run(["xdotool", how, *keys], check=True)


def hold(keys):
    """Until they have repeated some times."""
    press(keys, how="keydown")
    time.sleep(1)
    press(keys, how="keyup")


def press_and_follow(key):
    """Gives the place where the keyboard is then."""
    before = program.keyboard_at()
    press(key)
    return program.wait_until(f"{key} moves the keyboard from {before}", lambda: (
        here := program.keyboard_at()) != before and here)


def go_by(key, name, frame=""):
    """Presses the key until the keyboard is on a control, in a frame."""
    seen = set()
    here = program.keyboard_at()
    while here is None or here[1] != name or frame not in here[2]:
        if here in seen:
            sys.exit(f"{key} does not lead to '{name}' but to {seen}")
        seen.add(here)
        here = press_and_follow(key)


def open_by_menu(item, page):
    press("F10")
    program.wait_for("popup menu", "")
    go_by("Right", item)
    press("Return")
    program.wait_for("frame", page, "active")


def check_tabulator():
    """It comes to all controls of the page that are not locked, and back."""
    start = here = press_and_follow("Tab")
    seen = set()
    while here not in seen:
        seen.add(here)
        here = press_and_follow("Tab")
    free = {node.place() for node in program.window().nodes()
            if {"focusable", "enabled"} <= node.states}
    if here != start or seen != free:
        sys.exit(f"Tab does not come to {free - seen} but to {seen - free}, and back to {here}")


def pause_and_resume(frame):
    """By two presses of the same key on the same place."""
    program.wait_until("the motion has begun",
                       lambda: not program.find("push button", "Desenhar", "enabled"))
    go_by("Tab", "Parar", frame)
    for twin in ("Continuar", "Parar"):
        press("space")
        program.wait_until(f"the keyboard on {twin}", lambda: program.keyboard_at() == (
            "push button", twin, frame))


def turn_lesson(key, page):
    press(key)
    program.wait_for("label", f"Página activa: {page}")
    program.wait_for("push button", "Seguinte", "enabled")
    if page == 23:  # its buttons are free during the motion too
        program.wait_until("the program rests", rests)


def rests():
    def work():
        with open(f"/proc/{program.process.pid}/stat") as file:
            return file.read().rsplit(")")[-1].split()[11:13]
    before = work()
    time.sleep(0.3)
    return work() == before


program = Program(sys.argv[1])
program.wait_for("frame", PRESENTATION, "active")

open_by_menu("Clinorama", WORK_PAGE)
check_tabulator()
go_by("Tab", "Expressão analítica da função")
press("ctrl+a")
press("x*x", how="type")
go_by("Tab", "Velocidade")
press(*5 * ["Left"])
go_by("Tab", "Desenhar")
press("space")
go_by("Tab", "derivada à esquerda")
press("space")
pause_and_resume("Derivada num ponto")
program.wait_for("label", "Valor da derivada à esquerda: 4")
program.wait_for("push button", "Calcular", "enabled")

go_by("Tab", "Relacionar")
press("Return")
program.wait_for("frame", "Relação da função com as derivadas: CLINORAMA", "active")
check_tabulator()
go_by("Tab", "Sair ")
press("space")
program.wait_for("frame", PRESENTATION, "active")

open_by_menu("Clinorama", WORK_PAGE)
go_by("Tab", "Calcular")
press("space")
pause_and_resume("Derivada em todos os pontos")
press("ctrl+w")  # in the midst of the motion
program.wait_for("frame", PRESENTATION, "active")

press("alt+c")
program.wait_for("frame", "Conceito de derivada: CLINORAMA", "active")
check_tabulator()
go_by("Tab", "Velocidade")
press(*5 * ["Right"])
go_by("Tab", "Seguinte")
for page in range(1, 30):
    turn_lesson("space" if page < 15 else "Page_Down", page)
turn_lesson("Page_Down", "Final")
press("F5", "period")  # a presenter's remote sends them too
for page in (28, 26, 24, 22, 20, 18, 16, 15, 5, 4, 3, 2, 1):
    turn_lesson("Page_Up", page)
hold("ctrl+w")
program.wait_for("frame", PRESENTATION, "active")

press("alt+s")
program.wait_for("document frame", "Página 1")
check_tabulator()
press("Page_Down")
program.wait_for("document frame", "Página 2")
go_by("Tab", "Página seguinte")
for page in (3, 4, 4):
    hold("Return")
    program.wait_for("document frame", f"Página {page}")
press("Escape")
program.wait_for("frame", PRESENTATION, "active")

press("F10")
go_by("Down", "Abandonar o programa")
press("Return")
if status := program.process.wait(PATIENCE):
    sys.exit(f"The program ended with status {status}.")
print("All pages were used by keys alone.")
