"""The poses of normal attacks: drawn back while they start, stretched to the end of the contact
box while they are active, and back on guard."""

from .poses import look


def specs(body, attack, kind):
    """A row of a pose table for each frame of an attack."""
    style, *side = kind.split()
    draw = STYLES[style]
    legs = {"crouch": "crouch", "air": "air"}.get(attack.posture, "stand")
    rows = []
    for number in range(len(attack.start)):
        rows.append(draw(body, attack, side, legs, "start", (number + 1) / len(attack.start)))
    for number in range(len(attack.active)):
        rows.append(draw(body, attack, side, legs, "active", number))
    for number in range(len(attack.recovery)):
        # The first frame back still has the limb at three fifths of its reach.
        rows.append(draw(body, attack, side, legs, "back", number))
    rows.append(look("low" if attack.posture != "stand" else "fight", legs))
    return rows


def target(body, attack, part=1.0, lean=True):
    """The end of the limb, in pixels."""
    reach = attack.reach * part
    x = (attack.lean // 2 if lean else 0) + reach + (-3 if reach > 0 else 3)
    return x, -body.height * attack.at / 100


def fists(side, hit, other):
    """The far and the near hand."""
    return (hit, other) if side == ["far"] else (other, hit)


def punch(body, attack, side, legs, phase, step, **more):
    far = side == ["far"]
    guard = (8, 12) if far else (14, 5)
    swing = dict(more, face="fierce", twist=1.15 if far else -0.35)
    x, y = target(body, attack)
    if phase == "start":
        pulled = (10 - 7 * step, 9) if far else (6 - 14 * step, 13)
        return look(fists(side, pulled, guard), legs, **dict(swing, twist=0.8 if far else 1.2),
                    sway=-0.2)
    if phase == "active":
        return look(fists(side, (x, y, 0), guard), wider(legs), **swing, sway=0.5, strain=True)
    if step == 0:
        x, y = target(body, attack, 0.62)
        return look(fists(side, (x, y, 0), guard), wider(legs), **dict(swing, twist=0.7))
    return look("fight" if step > 1 else "low", legs, face="fierce")


def wider(legs):
    return "wide" if legs == "stand" else legs


def palm(*arguments):
    return punch(*arguments, palms=True)


def hook(*arguments):
    side = arguments[2][0]
    row = punch(*arguments, **{side + "_bend": -1})
    return row


def kick(body, attack, side, legs, phase, step):
    x, y = target(body, attack)
    stand = {"crouch": (0.2, 0), "air": (0.5, 12)}.get(legs, (-0.1, 0))
    high = attack.at > 60
    behind = attack.reach < 0
    if phase == "start":
        lift = 10 + 18 * step + (attack.at - 60) * 0.5 * step if attack.at > 30 else 4 * step
        across = 0.2 + 0.7 * step if not behind else 0.1
        return look("low" if legs != "stand" else "fight", (stand, (across, lift)),
                    face="fierce", sway=-0.3)
    if phase == "active":
        rise = min(0, y + 4)
        props = (("arc", "kick", x, rise, step),) if attack.shake else ()
        arms = "flail1" if not high else "run2"
        return look(arms, (stand, (x - 3 if not behind else x + 3, rise, 0)), face="shout",
                    sway=0.7, twist=0.4, props=props, tilt=-6 if high else 0)
    if step == 0:
        x, y = target(body, attack, 0.62)
        return look("flail2", (stand, (x - 3, min(0, y + 4), 0)), face="fierce", twist=0.6,
                    sway=0.2)
    return look("low" if legs != "stand" or step == 1 else "fight", legs, face="fierce")


def heel(body, attack, side, legs, phase, step):
    """From above: the foot is high before it comes down."""
    x, y = target(body, attack)
    stand = (0.5, 12) if legs == "air" else (-0.1, 0)
    if phase == "start":
        high = -body.height * (0.55 + 0.45 * step)
        return look("flail2", (stand, (10 + 18 * step, high, 0)), face="fierce", sway=-0.3,
                    twist=0.5, tilt=-8 * step)
    if phase == "active":
        return look("run2", (stand, (x - 4, y + 4 + 4 * step, 0)), face="shout", sway=0.8,
                    twist=0.4, props=(("arc", "heel", x, y, step),))
    if step == 0:
        x, y = target(body, attack, 0.62)
        return look("flail2", (stand, (x - 3, y + 8, 0)), face="fierce", twist=0.6)
    return look("low" if legs != "stand" or step == 1 else "fight", legs, face="fierce")


def both(body, attack, side, legs, phase, step, palms=True, face="fierce"):
    """Both hands: a shove, or to take hold."""
    x, y = target(body, attack)
    behind = attack.lean < 0 and attack.reach > 0
    if phase == "start":
        return look(((12 - 8 * step, 8), (4 - 8 * step, 14)), legs, face="fierce", palms=palms,
                    sway=-0.3)
    if phase == "active":
        return look(((x, y - 5, 0), (x - 2, y + 6, 0)), wider(legs), face="shout", twist=0.15,
                    palms=palms, strain=True, sway=0.4)
    if step == 0:
        x, y = target(body, attack, 0.66)
        return look(((x, y - 6, 0), (x - 2, y + 6, 0)), wider(legs), face=face, palms=palms,
                    twist=0.3 if attack.level != "throw" else -0.3, sway=0.4)
    if step == 1 and attack.level == "throw":
        arms = ((-14, -14), (-18, -6)) if behind else ((26, 16), (20, 22))
        return look(arms, wider(legs), face="shout", twist=-0.4 if behind else 0.3, palms=palms,
                    sway=0.6)
    return look("low" if step == 1 else "fight", legs, face="fierce")


def hammer(body, attack, side, legs, phase, step):
    x, y = target(body, attack)
    if phase == "start":
        arms = ((16 - 18 * step, 6 - 36 * step), (10 - 18 * step, 12 - 42 * step))
        return look(arms, wider(legs), face="fierce", twist=0.4, sway=-0.3 * step)
    if phase == "active":
        down = 10 + 8 * step
        return look(((x, y + down - 3, 0), (x - 3, y + down + 4, 0)), "wide", face="shout",
                    twist=0.1, strain=True, sway=0.7, props=(("arc", "hammer", x, y, step),))
    if step == 0:
        x, y = target(body, attack, 0.66)
        return look(((x, y + 20, 0), (x - 3, y + 26, 0)), "wide", face="fierce", twist=0.2)
    return look("low" if step < 3 else "fight", legs, face="fierce")


def stomp(body, attack, side, legs, phase, step):
    x, _ = target(body, attack)
    if phase == "start":
        return look("flail2", ((-0.1, 0), (0.3 + 0.5 * step, 14 + 20 * step)), face="fierce",
                    hip=(-2 * step, 0))
    if phase == "active":
        return look("wide", ((-0.6, 0), (x - 6, 0, 0)), face="shout", hip=(8, 6), sway=0.5,
                    props=(("dust", x),))
    if step == 0:
        return look("wide", ((-0.5, 0), (x - 10, 0, 0)), face="fierce", hip=(6, 4))
    return look("low", legs, face="fierce")


def shoulder(body, attack, side, legs, phase, step):
    x, y = target(body, attack)
    if phase == "start":
        return look(((8, 16), (-6 * step, 18)), "wide", face="fierce", hip=(-3 * step, 2),
                    sway=-0.2)
    if phase == "active":
        return look(((x - 11, y + 12, 0), (x - 2, y + 9, 0)),
                    ((1.3, 0), (-1.6, 4)) if step == 0 else ((1.5, 2), (-1.5, 0)), face="shout",
                    twist=-0.9, chest=(5, 3), hip=(6, 1), near_bend=-1, sway=1)
    if step == 0:
        return look(((x - 20, y + 12, 0), (x - 14, y + 8, 0)), "wide", face="fierce", twist=-0.4,
                    hip=(3, 0), sway=0.3)
    return look("low", legs, face="fierce")


def belly(body, attack, side, legs, phase, step):
    if phase == "active" or phase == "back" and step == 0:
        return look(((12, -10), (-24, 0)), ((-0.2, 10), (-0.7, 6)), face="shout", hip=(11, 0),
                    chest=(-1, 0), tilt=-10, sway=0.8)
    return look("back" if phase == "start" else "low", "air", face="fierce")


def knee(body, attack, side, legs, phase, step):
    if phase == "start":
        return look("up", "rise", face="fierce", sway=0.2)
    if phase == "active" or step == 0:
        return look("back", ((-0.5, 0), (0.55, 0)), face="shout", twist=0.3, hip=(4, 4), sway=0.9)
    return look("wide", "air", face="fierce")


STYLES = {"punch": punch, "palm": palm, "hook": hook, "kick": kick, "heel": heel, "both": both,
          "hammer": hammer, "stomp": stomp, "shoulder": shoulder, "belly": belly, "knee": knee}
