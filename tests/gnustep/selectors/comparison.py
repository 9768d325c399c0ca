"""Compares the project's declarations with GNUstep's. A finding is a name and what is wrong with it."""

from headers import Container
from type_names import same

OWN_CLASS = "object of its class"


class Comparison:
    def __init__(self, here, there, older=None):
        """`older`: for constants that GNUstep knows by another name, "constant " and the name to that name."""
        self.here = here
        self.there = there
        self.older = older or {}
        self.renamed = set()  # those of them that were needed
        self.absent = set()  # names that GNUstep has not
        self.different = {}  # names that both have, with what differs
        self.agreeing = 0

    def run(self):
        for name, container in sorted(self.here.classes.items()):
            self.compare_class(name, container)
        for name, container in sorted(self.here.protocols.items()):
            self.compare_container(f"protocol {name}", f"<{name}>", container, self.protocol_chain(name))
        for name, signature in sorted(self.here.functions.items()):
            self.compare_signature(f"function {name}", signature, self.there.functions.get(name), set())
        for kind in ("variable", "constant"):
            for name, value in sorted(getattr(self.here, kind + "s").items()):
                self.compare_value(f"{kind} {name}", value, self.find_value(kind, name))
        for name, value in sorted(self.here.types.items()):
            if name in self.there.types:
                self.compare_value(f"type {name}", value, self.there.types[name])
        return self

    def find_value(self, kind, name):
        values = getattr(self.there, kind + "s")
        title = f"{kind} {name}"
        if name not in values and title in self.older:
            self.renamed.add(title)
            return values.get(self.older[title])
        return values.get(name)

    def class_chain(self, name):
        """GNUstep's class and its superclasses, with the protocols that they adopt."""
        chain = []
        while name is not None and name in self.there.classes:
            chain.append((name, self.there.classes[name]))
            name = self.there.classes[name].superclass
        for _, container in list(chain):
            for protocol in sorted(container.protocols):
                chain += self.protocol_chain(protocol)
        return chain

    def protocol_chain(self, name):
        """GNUstep's protocol, those that it adopts, and what it lets every object answer to: before
        protocols had optional methods, delegates were described so."""
        protocol = self.there.protocols.get(name)
        if protocol is None:
            return []
        chain = [(name, protocol)]
        for each in sorted(protocol.protocols - {name}):
            chain += self.protocol_chain(each)
        return chain + [("NSObject", self.there.classes.get("NSObject", Container()))]

    def compare_class(self, name, container):
        chain = self.class_chain(name)
        supers = {each for each, _ in chain[1:]}
        if container.superclass is not None and chain and container.superclass not in supers:
            self.different[f"class {name}"] = f"not a {container.superclass} there"
        self.compare_container(f"class {name}", name, container, chain)

    def compare_container(self, title, shown, container, chain):
        if container.defined and not any(each.defined for _, each in chain):
            self.absent.add(title)
        for selector, signature in sorted(container.methods.items()):
            found = next((each.methods[selector] for _, each in chain if selector in each.methods), None)
            name = f"{selector[0]}[{shown} {selector[1:]}]"
            self.compare_signature(name, signature, found, {each for each, _ in chain})

    def compare_signature(self, name, here, there, classes):
        if there is None:
            self.absent.add(name)
            return
        results = same(here.result, there.result) or self.same_own_class(here.result, there.result, classes)
        arguments = len(here.arguments) == len(there.arguments) and all(map(same, here.arguments, there.arguments))
        if results and arguments:
            self.agreeing += 1
        else:
            self.different[name] = f"{here} here, {there} there"

    @staticmethod
    def same_own_class(here, there, classes):
        """An initialiser's result is called "id" by old declarations, and by the class by others."""
        return OWN_CLASS in (here, there) and {here, there} <= {OWN_CLASS, "object"} | classes

    def compare_value(self, name, here, there):
        if there is None:
            self.absent.add(name)
        elif here == there or isinstance(here, str) and same(here, there):
            self.agreeing += 1
        else:
            self.different[name] = f"{here} here, {there} there"
