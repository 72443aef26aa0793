"""An attack as one row of a table, and the animation and the move that it becomes."""

from dataclasses import dataclass

from .animation import Animation, held


@dataclass(frozen=True)
class Attack:
    name: str  # of the move
    number: int  # of the animation and of the group of its sprites
    title: str
    note: str
    command: str
    posture: str
    start: tuple  # ticks of each frame
    active: tuple
    recovery: tuple
    reach: int
    at: int  # height of the limb, in percent of the body
    thickness: int
    lean: int
    damage: tuple
    level: str
    stun: int
    push: tuple
    priority: int
    sound: tuple
    cancels: str = ""
    source: str = ""  # the state that it starts from
    air: str = "no"
    velocity: tuple = ()
    shake: tuple = ()
    cost: tuple = ()  # power, life

    @property
    def timing(self):
        ticks = [sum(part) for part in (self.start, self.active, self.recovery)]
        return "start {}, active {}, recovery {}: {} ticks".format(*ticks, sum(ticks))

    @property
    def advantage(self):
        """Ticks by which the attacker can act earlier than the one who is hit."""
        return self.stun - (sum(self.active) - 1) - sum(self.recovery)

    def animation(self, body):
        strike = (self.reach, self.at, self.thickness)
        drawn = (self.reach * 3 // 5, self.at, self.thickness)
        stages = len(self.start)
        frames = []
        for index, ticks in enumerate(self.start):
            lean = self.lean * index // stages - (2 if index == 0 else 0)
            frames.append((ticks, dict(lean=lean)))
        for ticks in self.active:
            frames.append((ticks, dict(lean=self.lean, strike=strike, limb=drawn)))
        for index, ticks in enumerate(self.recovery):
            options = dict(lean=self.lean * (len(self.recovery) - index) // (stages + 2))
            if index == 0:
                options["limb"] = drawn
            frames.append((ticks, options))
        frames.append((-1, {}))
        made = [body.frame(self.number, number, ticks, self.posture, **options)
                for number, (ticks, options) in enumerate(frames)]
        return Animation(str(self.number), self.title, held(made), self.timing)

    def spark(self, body):
        left, top, right, bottom = body.limb((self.reach, self.at, self.thickness), self.lean, 0)
        return (right - 6 if self.reach > 0 else left + 6), (top + bottom) // 2

    def code_lines(self, body):
        yield f"# {self.note}"
        hits = "" if self.level == "throw" else f", {self.advantage:+d} when it hits"
        yield f"# {self.timing}{hits}"
        yield f"[move {self.name}]"
        yield f"command   = {self.command}"
        yield f"animation = {self.number}"
        if self.air != "no":
            yield f"air       = {self.air}"
        if self.source:
            yield f"from      = {self.source}"
        yield f"priority  = {self.priority}"
        if self.velocity:
            yield "velocity  = {:g}, {:g}".format(*self.velocity)
        if self.cancels:
            yield f"cancels   = {self.cancels}"
        if self.cost:
            yield "[.cost]"
            yield "power = {}".format(self.cost[0])
            if self.cost[1]:
                yield "life  = {}".format(self.cost[1])
        yield "[.hit]"
        yield "damage = {}, {}".format(*self.damage)
        yield f"level  = {self.level}"
        yield f"stun   = {self.stun}"
        yield "push   = {:g}, {:g}".format(*self.push)
        yield "spark  = {}, {}".format(*self.spark(body))
        if self.shake:
            yield "shake  = " + ", ".join(str(pixels) for pixels in self.shake)
        yield "[.sound]"
        yield "hit    = {}, {}".format(*self.sound)
        yield "guard  = 5, {}".format(self.sound[1])


def move_lines(title, attacks, body):
    yield "zorv 1"
    for line in title:
        yield "# " + line
    for heading, rows in attacks:
        yield ""
        yield "# " + heading
        yield "# " + "-" * len(heading)
        for attack in rows:
            yield ""
            yield from attack.code_lines(body)
