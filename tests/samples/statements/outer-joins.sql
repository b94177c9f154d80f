-- outer-join-the-other-way-round
select c.Company, m.LastName from Employees m right join Customers c on m.EmployeeID = c.AccountManagerID where c.Segment = 'P'

-- outer-join-from-the-wrong-side
-- All staff, also those without customers: not what the link says.
select m.LastName, c.Company from Employees m left join Customers c on c.AccountManagerID = m.EmployeeID where m.Salary > 4000

-- outer-join-with-a-condition-on-the-outer-table
select c.Company, m.LastName from Customers c
left join Employees m on m.EmployeeID = c.AccountManagerID and m.PartTime = 1 where c.Segment = 'P'

-- outer-join-with-a-condition-on-the-inner-table
select c.Company, m.LastName from Customers c
left join Employees m on m.EmployeeID = c.AccountManagerID and c.City = 'Wien' where c.CountryCode = 'AT'

-- outer-join-undone-by-where
select c.Company, m.LastName from Customers c
left join Employees m on m.EmployeeID = c.AccountManagerID where m.LastName like 'W%' and c.Segment <> 'R'

-- outer-join-made-inner-by-a-later-join
-- Only customers whose manager reports to someone remain.
select c.Company, s.LastName from Customers c
left join Employees m on m.EmployeeID = c.AccountManagerID
join Employees s on s.EmployeeID = m.ReportsTo where c.Segment = 'P'

-- outer-join-in-brackets-with-an-inner-one
select c.Company, o.OrderID, m.LastName
from Orders o join (Customers c left join Employees m on m.EmployeeID = c.AccountManagerID) on o.CustomerID = c.CustomerID
where o.OrderDate >= '2025-12-20'

-- outer-join-behind-a-comma
select o.OrderID, c.Company, m.LastName
from Orders o, Customers c left join Employees m on m.EmployeeID = c.AccountManagerID
where o.CustomerID = c.CustomerID and o.OrderDate >= '2025-12-20'

-- outer-join-where-the-link-is-inner
select o.OrderID, s.ShipperName from Orders o left join Shippers s on s.ShipperID = o.ShipperID where o.OrderDate >= '2025-12-20'

-- condition-after-on-of-another-join
select o.OrderID, c.Company, s.ShipperName from Orders o
join Customers c on c.CustomerID = o.CustomerID and o.Express = 1
join Shippers s on s.ShipperID = o.ShipperID and c.Segment = 'W' and o.OrderDate >= '2025-01-01'

-- condition-or-beside-a-comma-join
-- Without brackets "or" lets every pair of rows pass; there are few of them.
select w.WarehouseName, s.OnHand from Warehouses w, Stock s where (s.WarehouseID = w.WarehouseID or s.OnHand > 1000) and s.OnHand > 250

-- link-as-a-negation
select o.OrderID, c.Company from Orders o, Customers c where not o.CustomerID <> c.CustomerID and o.OrderDate >= '2025-12-20'

-- addresses-in-the-other-order
select b.City, s.City from Addresses b, Addresses s, Orders o
where s.AddressID = o.ShippingAddressID and b.AddressID = o.BillingAddressID and b.City <> s.City and o.OrderDate >= '2025-01-01'
