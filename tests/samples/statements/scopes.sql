-- inner-alias-hides-the-outer-one
-- Both selects call a table "o"; each means its own.
select o.OrderID, o.Freight from Orders o
where o.OrderID in (select o.OrderID from Payments o where o.Amount > 9000) and o.Freight > 10

-- inner-table-hides-the-outer-one
select Company, City from Customers
where CustomerID in (select CustomerID from Customers where Segment = 'P') and Newsletter = 1

-- inner-table-without-alias-has-the-name-of-an-outer-alias
select Orders.Company from Customers Orders
where Orders.CustomerID in (select Orders.CustomerID from Orders where Orders.Freight > 92)

-- outer-alias-is-the-name-of-another-table
-- "Suppliers.City" is the city of a customer.
select Suppliers.Company, Suppliers.City from Customers Suppliers
where exists (select 1 from Warehouses w where w.City = Suppliers.City)

-- aliases-of-two-tables-exchanged
select Customers.OrderID, Orders.Company
from Orders Customers join Customers Orders on Customers.CustomerID = Orders.CustomerID
where Orders.Segment = 'P' and Customers.OrderDate >= '2025-06-01'

-- sub-query-uses-the-name-that-the-model-gives-to-the-outer-table
select c.Company from Customers c
where exists (select 1 from Orders Customers where Customers.CustomerID = c.CustomerID and Customers.Freight > 90)

-- alias-of-another-table-in-the-sub-query
select e.LastName from Employees e
where e.EmployeeID in (select Employees.EmployeeID from Orders Employees where Employees.Freight > 92)

-- inner-condition-on-a-column-of-both-tables
-- "City" is that of the supplier.
select Company from Customers where CountryCode in (select CountryCode from Suppliers where City like 'S%')

-- column-that-only-the-outer-table-has
select Company, Segment from Customers
where CustomerID in (select CustomerID from Orders where Freight > 85 and Segment = 'W')

-- correlated-and-above-the-own-average
select o.OrderID, o.CustomerID, o.Freight from Orders o
where o.OrderDate >= '2025-10-01' and o.Freight > 2 * (select avg(p.Freight) from Orders p where p.CustomerID = o.CustomerID)

-- correlated-under-not-and-or
select c.Company from Customers c
where not (c.Newsletter = 1 or exists (select 1 from Orders o where o.CustomerID = c.CustomerID)) or c.City = 'Linz'

-- correlated-in-two-directions
select p.ProductName from Products p
where exists (select 1 from Stock s where s.ProductID = p.ProductID and s.OnHand < s.ReorderLevel)
  and not exists (select 1 from "Order Lines" l where l.ProductID = p.ProductID and l.Quantity > 40)

-- correlated-over-a-quoted-table
select "Order Lines".OrderID, "Order Lines".LineNo from "Order Lines"
where "Order Lines".Quantity > 50
  and exists (select 1 from Returns r where r.OrderID = "Order Lines".OrderID and r.LineNo = "Order Lines".LineNo)

-- correlated-select-with-union
select s.SupplierName from Suppliers s
where exists (select 1 from Customers c where c.City = s.City union select 1 from Warehouses w where w.City = s.City)

-- alias-in-an-inner-from
select c.Company from Customers c
where c.City in (select x.Town from (select City as Town from Suppliers) x)

-- predefined-condition-with-other-letters
select Company from Customers
where NOT EXISTS (SELECT 1 FROM Orders x WHERE x.CustomerID = Customers.CustomerID) and Segment <> 'R'

-- predefined-condition-of-a-renamed-table
select k.Company from Customers k
where not exists (select 1 from Orders x where x.CustomerID = k.CustomerID) and k.Segment <> 'R'

-- nearly-a-predefined-condition
-- The inner "x" is compared with itself: any customer will do.
select count(*) from Customers x where not exists (select 1 from Orders x where x.CustomerID = x.CustomerID and x.OrderID < 0)

-- predefined-condition-in-another-scope
select Company from Customers where CustomerID in (
  select CustomerID from Orders where Status = 'C'
    and not exists (select 1 from Orders x where x.CustomerID = Customers.CustomerID and x.OrderDate >= '2025-06-01'))

-- outer-alias-two-levels-up-is-a-table-between
-- "Suppliers.City" is the city of a customer, two selects further out.
select Company from Customers Suppliers where CustomerID in (
  select s.SupplierID from Suppliers s where exists (select 1 from Warehouses w where w.City = Suppliers.City))

-- outer-alias-two-levels-up
select c.Company from Customers c where c.CustomerID in (
  select o.CustomerID from Orders o
  where o.Freight > 80 and exists (select 1 from Payments p where p.OrderID = o.OrderID and p.Amount > c.CreditLimit))

-- outer-alias-hidden-only-further-in
select c.Company from Customers c
where exists (select 1 from Orders o where o.CustomerID = c.CustomerID and o.OrderID in (select c.OrderID from Payments c where c.Amount > 9000))

-- outer-alias-hidden-only-beside
select c.Company from Customers c
where exists (select 1 from Suppliers c where c.City = 'Nowhere' union select 1 from Warehouses w where w.City = c.City)

-- outer-alias-is-the-name-of-an-inner-column
select City.Company from Customers City
where exists (select City from Suppliers where Suppliers.City = City.City)

-- with-clause-in-a-sub-query
-- The inner "CustomerID" is that of the orders; taken for the outer one, every customer would do.
select Company from Customers
where CustomerID in (with x as (select CustomerID from Orders where Freight > 92) select CustomerID from x)

-- in-one-value-of-a-select
-- Two brackets make one value of the select, its first row, to SQLite and others.
select CustomerID from Customers where CustomerID in ((select CustomerID from Orders where Freight > 92 order by OrderID))

-- sorted-by-a-select
-- ordered
select SupplierName, SupplierID from Suppliers order by (select City from Warehouses where WarehouseID = 1), SupplierID

-- grouped-by-a-select
select count(*) as n, (select count(*) from Suppliers where SupplierID = CustomerID) as m from Customers group by m
